#include "theme/StyleInstallation.h"

#include "resources/ThemeColorHelper.h"
#include "resources/ThemeResources.h"
#include "style/BaseStyle.h"
#include "style/asking/AppliedTheme.h"
#include "style/asking/Properties.h"

#include <QtCore/QDebug>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QMetaEnum>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QToolTip>

#include <utility>

namespace TARN {

namespace {

bool isForegroundRole(QPalette::ColorRole role, const QString &name)
{
    return name.contains(QLatin1String("Text")) || name.contains(QLatin1String("Foreground")) ||
           name.contains(QLatin1String("Link")) || role == QPalette::WindowText;
}

/// Returns \a palette with the brushes of its disabled group derived from those of its current
/// one.
QPalette withDisabledColors(QPalette palette)
{
    const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
    for (int i = 0; i < roles.keyCount(); ++i) {
        const auto role = static_cast<QPalette::ColorRole>(roles.value(i));
        if (role == QPalette::NColorRoles) {
            continue;
        }
        // The name is that of the role numbered like the key, so the aliases that follow the
        // roles go without one.
        const QString name = QString::fromLatin1(roles.valueToKey(i));
        const QColor color = palette.color(QPalette::Current, role);
        palette.setBrush(QPalette::Disabled, role,
                         ThemeColorHelper::disabled(color, isForegroundRole(role, name)));
    }
    return palette;
}

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

void installStyle(const QPalette &palette, Mode mode)
{
    const QPalette completePalette = withDisabledColors(palette);
    setAppliedTheme({mode, completePalette});
    auto *style = new BaseStyle;
    style->setPalette(completePalette);
    QApplication::setStyle(style);
    QToolTip::setPalette(completePalette);
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
