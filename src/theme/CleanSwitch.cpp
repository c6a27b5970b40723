#include "theme/CleanSwitch.h"

#include "resources/ThemeResources.h"
#include "resources/variables/ThemeGeneration.h"
#include "style/asking/Properties.h"
#include "theme/StyleInstallation.h"
#include "theme/ThemeFootprint.h"

#include <QtGui/QPixmapCache>
#include <QtWidgets/QApplication>

namespace TARN {

CleanSwitch::CleanSwitch(QApplication &app, ThemeFootprint &footprint)
    : m_app(app)
    , m_footprint(footprint)
    , m_mode(wantedMode(app))
{
    if (!isSet(&app, Property::AppLiveThemeSwitch) && m_mode == Mode::Default) {
        return;
    }
    m_followers.emplace();
    // By default an application's choices before the first theme make way for it.
    if (!footprint.isEmpty() || m_mode == Mode::Complete) {
        m_choices = ClassChoices::made();
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
    if (m_mode == Mode::Complete) {
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

void CleanSwitch::repeatChoices() const
{
    m_choices.makeFontsAgain();
    if (m_mode == Mode::Complete) {
        m_choices.makePalettesAgain();
    }
}

void CleanSwitch::finish() const
{
    if (isActive()) {
        m_followers->follow(m_styleIsNew);
    }
}

} // namespace TARN
