#include "theme/StyleInstallation.h"

#include "resources/ThemeResources.h"
#include "style/BaseStyle.h"
#include "style/asking/AppliedTheme.h"
#include "style/asking/Properties.h"
#include "theme/ApplicationLook.h"
#include "theme/ApplicationPalette.h"

#include <QtCore/QDebug>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtWidgets/QApplication>

#include <utility>

namespace TARN {

namespace {

QString compiledInStyleSheet()
{
    QString styleSheet;
    QDirIterator files(QStringLiteral(":/TARN/ThemeLibrary/stylesheets"), {QStringLiteral("*.qss")},
                       QDir::Files);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
            qDebug() << "Error reading stylesheet: " << file.errorString();
            continue;
        }
        // The text ends at a NUL byte.
        styleSheet += QString::fromUtf8(file.readAll().constData());
    }
    return styleSheet;
}

/// The stylesheet that an application was given last.
QString &installedStyleSheet()
{
    static QString styleSheet;
    return styleSheet;
}

} // namespace

Mode wantedMode(const QApplication &app)
{
    return isSet(&app, Property::AppCompleteTheming) ? Mode::Complete : Mode::Default;
}

void installStyle(QApplication &app, const QPalette &palette)
{
    const Mode mode = wantedMode(app);
    const QPalette completePalette = applicationPalette(palette, mode);
    setAppliedTheme({mode, completePalette});
    auto *style = new BaseStyle;
    style->setPalette(completePalette);
    QApplication::setStyle(style);
    ApplicationLook &look = ApplicationLook::of(app);
    look.setToolTipPalette(completePalette);
    look.leaveWith(*style);
}

void installStyleSheet(QApplication &app)
{
    installedStyleSheet() = ThemeResources::customizeStyleSheet(compiledInStyleSheet());
    app.setStyleSheet(installedStyleSheet());
}

void removeInstalledStyleSheet(QApplication &app)
{
    const QString installed = std::exchange(installedStyleSheet(), QString());
    if (!installed.isEmpty() && app.styleSheet() == installed) {
        app.setStyleSheet(QString());
    }
}

} // namespace TARN
