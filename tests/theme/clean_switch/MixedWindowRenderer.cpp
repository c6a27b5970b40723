#include "MixedWindow.h"

#include <theme/BaseTheme.h>

#include <QtWidgets/QApplication>

/// Applies the theme directory that is the first argument to a new application, and saves how
/// the window looks as the file that is the second.
int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    // As in every test's process.
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    app.setProperty("appLiveThemeSwitch", true);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        return 2;
    }
    TARN::BaseTheme(arguments[1]).customize(&app);
    const std::unique_ptr<QWidget> window = createMixedWindow();
    return render(*window).save(arguments[2]) ? 0 : 1;
}
