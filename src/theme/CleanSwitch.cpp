#include "theme/CleanSwitch.h"

#include "resources/ThemeResources.h"
#include "resources/variables/ThemeGeneration.h"
#include "style/asking/Properties.h"
#include "theme/StyleInstallation.h"
#include "theme/ThemeFootprint.h"

#include <QtGui/QPixmapCache>
#include <QtWidgets/QApplication>

namespace TARN {

namespace {

/// Returns the fonts that the application has chosen for the classes of its living widgets.
QMap<QByteArray, QFont> chosenClassFonts()
{
    QMap<QByteArray, QFont> fonts;
    const QFont applicationFont = QApplication::font();
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget *widget : widgets) {
        for (const QMetaObject *type = widget->metaObject(); type; type = type->superClass()) {
            const QFont font = QApplication::font(type->className());
            if (!font.isCopyOf(applicationFont)) {
                fonts.insert(type->className(), font);
            }
        }
    }
    return fonts;
}

} // namespace

CleanSwitch::CleanSwitch(QApplication &app, ThemeFootprint &footprint)
    : m_app(app)
    , m_footprint(footprint)
{
    if (!isSet(&app, Property::AppLiveThemeSwitch) && wantedMode(app) == Mode::Default) {
        return;
    }
    m_followers.emplace();
    if (!footprint.isEmpty()) {
        m_classFonts = chosenClassFonts();
    }
}

QPalette CleanSwitch::basePalette() const
{
    return isActive() ? m_footprint.basePalette() : QGuiApplication::palette();
}

QFont CleanSwitch::baseFont() const
{
    return isActive() ? m_footprint.baseFont() : QFont();
}

void CleanSwitch::addFonts(const QString &folder)
{
    if (isActive()) {
        m_footprint.replaceFonts(folder);
    } else {
        m_footprint.addFonts(folder);
    }
}

void CleanSwitch::forgetFactors()
{
    if (isActive()) {
        m_app.setProperty(ThemeResources::getInternalThemeVariablePropertyName(), QVariant());
        ThemeGeneration::startNext();
    }
}

void CleanSwitch::takeBackImages()
{
    if (isActive()) {
        m_footprint.takeBackImages();
    }
}

void CleanSwitch::forgetLookUps()
{
    if (isActive()) {
        ThemeGeneration::startNext();
        // Pictures are kept by path and size there, which two themes' resource files may share.
        QPixmapCache::clear();
    }
}

void CleanSwitch::removeStyleSheet()
{
    m_styleIsNew = true;
    if (wantedMode(m_app) == Mode::Complete) {
        removeInstalledStyleSheet(m_app);
    } else if (isActive()) {
        m_app.setStyleSheet(QString());
    }
}

void CleanSwitch::spreadFont(const QFont &font)
{
    if (isActive()) {
        QApplication::setFont(font);
    }
}

void CleanSwitch::finish() const
{
    for (auto it = m_classFonts.cbegin(); it != m_classFonts.cend(); ++it) {
        QApplication::setFont(it.value(), it.key().constData());
    }
    if (isActive()) {
        m_followers->follow(m_styleIsNew);
    }
}

} // namespace TARN
