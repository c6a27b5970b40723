#include "theme/CleanSwitch.h"

#include "resources/variables/ThemeGeneration.h"
#include "style/asking/Properties.h"
#include "theme/DocumentLinks.h"
#include "theme/ThemeFootprint.h"

#include <QtGui/QPixmapCache>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMdiArea>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QTabBar>

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

/// Returns the palette that \a widget would have if nobody had given it one.
QPalette inheritedPalette(const QWidget &widget)
{
    return widget.isWindow() || !widget.parentWidget() ? QApplication::palette(&widget)
                                                       : widget.parentWidget()->palette();
}

/// Returns the labels whose text is coloured like what they stand on, though their palette says so
/// itself: a style that colours their disabled text fixes the enabled one too, since a palette has
/// a role for all of its groups or for none.
QVector<QPointer<QLabel>> plainLabels()
{
    QVector<QPointer<QLabel>> labels;
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        auto *label = qobject_cast<QLabel *>(widget);
        if (label && label->palette().brush(QPalette::Active, QPalette::WindowText) ==
                         inheritedPalette(*label).brush(QPalette::Active, QPalette::WindowText)) {
            labels.append(label);
        }
    }
    return labels;
}

/// Gives \a labels the text colour of what they stand on.
void colorPlainLabels(const QVector<QPointer<QLabel>> &labels)
{
    for (QLabel *label : labels) {
        if (!label) {
            continue;
        }
        const QPalette inherited = inheritedPalette(*label);
        QPalette palette = label->palette();
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            palette.setBrush(group, QPalette::WindowText,
                             inherited.brush(group, QPalette::WindowText));
        }
        label->setPalette(palette);
    }
}

/// Returns the areas for sub-windows that have the background which the toolkit gave them: it takes
/// that from the palette when an area is made, and never again.
QVector<QPointer<QMdiArea>> plainAreas()
{
    QVector<QPointer<QMdiArea>> areas;
    const QBrush background = QGuiApplication::palette().brush(QPalette::Dark);
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        auto *area = qobject_cast<QMdiArea *>(widget);
        if (area && area->background() == background) {
            areas.append(area);
        }
    }
    return areas;
}

void colorPlainAreas(const QVector<QPointer<QMdiArea>> &areas)
{
    for (QMdiArea *area : areas) {
        if (area) {
            area->setBackground(QGuiApplication::palette().brush(QPalette::Dark));
        }
    }
}

/// Fits the buttons that close tabs to the font, since tab bars size them only once.
void fitCloseButtons()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        auto *tabBar = qobject_cast<QTabBar *>(widget->parentWidget());
        if (tabBar && widget->inherits("CloseButton")) {
            widget->resize(widget->sizeHint());
            // It is then that the bar measures its tabs.
            QEvent fontChange(QEvent::FontChange);
            QCoreApplication::sendEvent(tabBar, &fontChange);
        }
    }
}

/// Has widgets that fetch icons when the style changes fetch them, although it did not.
void fetchIcons()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        if (qobject_cast<QMessageBox *>(widget) || qobject_cast<QDockWidget *>(widget)) {
            QEvent styleChange(QEvent::StyleChange);
            QCoreApplication::sendEvent(widget, &styleChange);
        }
    }
}

/// Has tool bars fetch the icon of their extension again: they do so when they are turned, and not
/// when the style changes.
void fetchExtensionIcons()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        if (widget->inherits("QToolBarExtension")) {
            QEvent directionChange(QEvent::LayoutDirectionChange);
            QCoreApplication::sendEvent(widget, &directionChange);
        }
    }
}

} // namespace

CleanSwitch::CleanSwitch(QApplication &app, ThemeFootprint &footprint)
    : m_app(app)
    , m_footprint(footprint)
    , m_active(isSet(&app, Property::AppLiveThemeSwitch))
    , m_formerFont(QGuiApplication::font())
    , m_formerLink(QGuiApplication::palette().link())
{
    if (!m_active) {
        return;
    }
    if (!footprint.isEmpty()) {
        m_classFonts = chosenClassFonts();
    }
    m_plainLabels = plainLabels();
    m_plainAreas = plainAreas();
    footprint.takeBack();
    ThemeGeneration::startNext();
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
        // Who hears of the fonts may look up what no theme defines now.
        ThemeGeneration::startNext();
    }
}

void CleanSwitch::variablesPublished() const
{
    if (m_active) {
        QGuiApplication::setFont(m_formerFont);
        ThemeGeneration::startNext();
    }
}

void CleanSwitch::replaceStyleSheet(const QFont &font)
{
    m_replacesStyle = true;
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
        colorPlainLabels(m_plainLabels);
        colorPlainAreas(m_plainAreas);
        fitCloseButtons();
        fetchExtensionIcons();
        if (!m_replacesStyle) {
            fetchIcons();
        }
        repaintDocumentLinks(m_formerLink, QGuiApplication::palette().link());
    }
}

} // namespace TARN
