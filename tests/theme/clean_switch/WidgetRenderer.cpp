#include "MixedWindow.h"
#include "OpenWidgets.h"

#include <theme/BaseTheme.h>

#include <QtWidgets/QApplication>

#include <support/Text.h>

/// Applies the theme directory that is the second argument to a new application, and saves how the
/// widgets that the first one names look as the file that is the third. The fourth is the property
/// by which the application asks for clean switches.
int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    // As in every test's process.
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 5) {
        return 2;
    }
    app.setProperty(arguments[4].toLatin1().constData(), true);
    TARN::BaseTheme(arguments[2]).customize(&app);
    const QImage picture =
        arguments[1] == text("open") ? OpenWidgets().render() : render(*createMixedWindow());
    return picture.save(arguments[3]) ? 0 : 1;
}
