#include "theme/CleanSwitch.h"

#include "resources/ProcessCache.h"
#include "theme/DocumentLinks.h"
#include "theme/ThemeFootprint.h"

#include <QtGui/QPixmapCache>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

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
    , m_active(app.property("appLiveThemeSwitch").toBool())
    , m_formerFont(QGuiApplication::font())
    , m_formerLink(QGuiApplication::palette().link())
{
    if (!m_active) {
        return;
    }
    if (!footprint.isEmpty()) {
        m_classFonts = chosenClassFonts();
    }
    footprint.takeBack();
    ProcessCache::dropAll();
    // Pictures are kept by path and size there, which two themes' resource files may share.
    QPixmapCache::clear();
    // The default of the sizes that a theme leaves out. Widgets are not told: they are about to
    // get the theme's own font.
    QGuiApplication::setFont(footprint.baseFont());
}

QPalette CleanSwitch::basePalette() const
{
    return m_active ? m_footprint.basePalette() : QGuiApplication::palette();
}

void CleanSwitch::fontsAdded() const
{
    if (m_active) {
        m_footprint.forgetFontLookUps();
    }
}

void CleanSwitch::variablesPublished() const
{
    if (m_active) {
        QGuiApplication::setFont(m_formerFont);
        ProcessCache::dropAll();
    }
}

void CleanSwitch::replaceStyleSheet(const QFont &font) const
{
    if (m_active) {
        m_app.setStyleSheet(QString());
        QApplication::setFont(font);
    }
}

void CleanSwitch::finish() const
{
    for (auto it = m_classFonts.cbegin(); it != m_classFonts.cend(); ++it) {
        QApplication::setFont(it.value(), it.key().constData());
    }
    if (m_active) {
        repaintDocumentLinks(m_formerLink, QGuiApplication::palette().link());
    }
}

} // namespace TARN
