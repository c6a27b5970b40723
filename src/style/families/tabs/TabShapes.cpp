#include "style/families/tabs/TabShapes.h"

#include "catalogue/Names.h"
#include "style/asking/Backgrounds.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/brushes/ButtonBrushChoice.h"
#include "style/brushes/KeptBrushes.h"
#include "style/drawing/Icons.h"
#include "style/drawing/Lines.h"
#include "style/drawing/Shapes.h"
#include "style/families/tabs/TabSides.h"

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QTabWidget>

namespace TARN::Tabs {

namespace {

constexpr int highlightThickness = 2;

/// The cross of a close button keeps this share of the button free at either side.
constexpr int closeMarginShare = 5;

struct SizeProperty
{
    Property ofApplication;
    Property ofTabBar;
    CornerSize radius;
};

/// The first one that is set wins, those of the application before those of the tab bar.
constexpr SizeProperty sizeProperties[] = {
    {Property::AppSmallTabSize, Property::SmallTabSize, CornerSize::Small},
    {Property::AppBaseTabSize, Property::BaseTabSize, CornerSize::Base},
    {Property::AppMediumTabSize, Property::MediumTabSize, CornerSize::Medium},
    {Property::AppLargeTabSize, Property::LargeTabSize, CornerSize::Large},
};

int tabRadius(const QWidget *tabBar)
{
    for (const SizeProperty &row : sizeProperties) {
        if (isSet(qApp, row.ofApplication)) {
            return cornerRadius(row.radius);
        }
    }
    for (const SizeProperty &row : sizeProperties) {
        if (isSet(tabBar, row.ofTabBar)) {
            return cornerRadius(row.radius);
        }
    }
    return cornerRadius(CornerSize::Medium);
}

/// Returns the strip of \a rect, \a thickness wide, at the side of it where the page is.
QRect baseSide(const QRect &rect, QTabBar::Shape shape, int thickness)
{
    QRect strip = rect;
    if (isSouth(shape)) {
        strip.setHeight(thickness);
    } else if (isWest(shape)) {
        strip.setLeft(rect.right() - thickness + 1);
    } else if (isEast(shape)) {
        strip.setWidth(thickness);
    } else {
        strip.setTop(rect.bottom() - thickness + 1);
    }
    return strip;
}

/// Returns the strip of \a rect at the side of it that is away from the page.
QRect outerSide(const QRect &rect, QTabBar::Shape shape, int thickness)
{
    QRect strip = baseSide(rect, shape, thickness);
    strip.moveLeft(rect.left() + rect.right() - strip.right());
    strip.moveTop(rect.top() + rect.bottom() - strip.bottom());
    return strip;
}

Helpers::StraightCornerFlags cornersAtBase(QTabBar::Shape shape)
{
    if (isSouth(shape)) {
        return Helpers::StraightTopLeft | Helpers::StraightTopRight;
    }
    if (isWest(shape)) {
        return Helpers::StraightTopRight | Helpers::StraightBottomRight;
    }
    if (isEast(shape)) {
        return Helpers::StraightTopLeft | Helpers::StraightBottomLeft;
    }
    return Helpers::StraightBottomLeft | Helpers::StraightBottomRight;
}

/// Returns the rectangle of the tab with the pixel by which it overlaps the next one, so that the
/// two share one border.
QRect overlappingRect(const PaintRequest &request, const QStyleOptionTab &tab)
{
    const bool isVerticalBar = isVertical(tab.shape);
    const bool isMirrored = !isVerticalBar && isRightToLeft(tab);
    const bool isAtEnd =
        tab.position == QStyleOptionTab::OnlyOneTab ||
        tab.position == (isMirrored ? QStyleOptionTab::Beginning : QStyleOptionTab::End);
    const int overlap = isAtEnd ? 0 : request.metric(QStyle::PM_TabBarTabOverlap);
    return isVerticalBar ? tab.rect.adjusted(0, 0, 0, overlap)
                         : tab.rect.adjusted(0, 0, overlap, 0);
}

const QBrush &tabBrush(TabBackground state, bool enabled)
{
    if (state == TabBackground::Selected) {
        return themeBrush(BrushName::TabBackgroundActiveBrush, enabled);
    }
    return state == TabBackground::Hovered ? themeBrush(BrushName::TabBorderMouseOverBrush, true)
                                           : themeBrush(BrushName::TabBackgroundBrush, enabled);
}

/// Draws the current tab, which is open towards its page: its outline closes beyond its rectangle,
/// so far that nothing of the line is seen when it falls between two pixels of the screen.
void drawOpenTab(QPainter &painter, const QRect &rect, const QStyleOptionTab &tab, int radius)
{
    const int extent = isVertical(tab.shape) ? rect.width() : rect.height();
    const QRect open = outerSide(rect, tab.shape, extent + 2);
    painter.save();
    painter.setClipRect(rect, Qt::IntersectClip);
    drawShape(painter, onHalfPixel(open), radius, outlinePen(cardBorderBrush(isEnabled(tab))),
              tabBrush(TabBackground::Selected, isEnabled(tab)), cornersAtBase(tab.shape));
    painter.restore();
}

/// Draws a tab that the page is in front of.
void drawClosedTab(const PaintRequest &request, const QRect &rect, const QStyleOptionTab &tab,
                   int radius, TabBackground state)
{
    const bool enabled = isEnabled(tab);
    QPainter &painter = *request.painter;
    drawShape(painter, onHalfPixel(rect), radius, outlinePen(cardBorderBrush(enabled)),
              tabBrush(state, enabled), cornersAtBase(tab.shape));
    if (!enabled && request.widget && request.widget->isEnabled()) {
        // The line below the tabs belongs to the page, which a single disabled tab does not dim.
        painter.fillRect(baseSide(rect, tab.shape, 1) & rect, cardBorderBrush(true));
    }
}

/// The line along the outer side of a highlighted tab follows the rounded corners of the tab.
void drawHighlight(QPainter &painter, const QRect &rect, const QStyleOptionTab &tab, int radius)
{
    const QBrush brush(themeColor(ColorName::MainColor, isEnabled(tab)));
    painter.save();
    painter.setClipRect(outerSide(rect, tab.shape, highlightThickness), Qt::IntersectClip);
    drawShape(painter, QRectF(rect), radius, Qt::NoPen, brush, cornersAtBase(tab.shape));
    painter.restore();
}

/// Returns what the tabs hide of the outline of the page. A stretched bar goes on behind its last
/// tab, where nothing but the page draws a line.
QRect coveredByTabs(const QStyleOptionTabWidgetFrame &frame, const QWidget *widget)
{
    const auto *tabWidget = qobject_cast<const QTabWidget *>(widget);
    if (!tabWidget || !isSet(tabWidget, Property::Stretched)) {
        return frame.tabBarRect;
    }
    const QTabBar &tabBar = *tabWidget->tabBar();
    const QRect tabs = tabBar.tabRect(0) | tabBar.tabRect(tabBar.count() - 1);
    return tabs.translated(frame.tabBarRect.topLeft()) & frame.tabBarRect;
}

} // namespace

bool drawWidgetFrame(const PaintRequest &request)
{
    QPainter &painter = *request.painter;
    const QRect &rect = request.option->rect;
    const bool enabled = isEnabled(*request.option);
    // The painter would fill what an inverted rectangle encloses.
    if (!rect.isValid()) {
        return true;
    }
    painter.fillRect(rect, themeBrush(BrushName::TabBackgroundActiveBrush, enabled));
    if (const auto *frame = qstyleoption_cast<const QStyleOptionTabWidgetFrame *>(request.option)) {
        painter.save();
        painter.setClipRegion(QRegion(rect) - coveredByTabs(*frame, request.widget),
                              Qt::IntersectClip);
        drawShape(painter, onHalfPixel(rect), 0, outlinePen(cardBorderBrush(enabled)), Qt::NoBrush);
        painter.restore();
    }
    return true;
}

bool drawBarBase(const PaintRequest &request)
{
    const auto *base = qstyleoption_cast<const QStyleOptionTabBarBase *>(request.option);
    if (!base) {
        return false;
    }
    // The side of the base that the tabs touch is the outer one of the page.
    const QRect line = outerSide(base->rect, base->shape, 1) & base->rect;
    // The current tab is open towards its page.
    for (const QRect &part : QRegion(line) - base->selectedTabRect) {
        request.painter->fillRect(part, cardBorderBrush(isEnabled(*base)));
    }
    return true;
}

bool drawCloseIndicator(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    QPainter &painter = *request.painter;
    const ButtonBrushes brushes = buttonBrushes(&option, request.widget);
    const QSize size(request.metric(QStyle::PM_TabCloseIndicatorWidth),
                     request.metric(QStyle::PM_TabCloseIndicatorHeight));
    const QRect face = QStyle::alignedRect(option.direction, Qt::AlignCenter, size, option.rect);
    // A face of its own tells that what is under the mouse closes the tab instead of choosing it.
    if (isEnabled(option) && (isHovered(option) || has(option, QStyle::State_Sunken))) {
        drawShape(painter, QRectF(face), cornerRadius(CornerSize::Base), Qt::NoPen,
                  brushes.background);
    }
    const int margin = size.height() / closeMarginShare;
    drawTintedIcon(painter, face.adjusted(margin, margin, -margin, -margin),
                   keptIcon("action.close"), brushes.foreground);
    return true;
}

bool drawTabShape(const PaintRequest &request)
{
    const auto *tab = qstyleoption_cast<const QStyleOptionTab *>(request.option);
    if (!tab) {
        return false;
    }
    const QRect rect = overlappingRect(request, *tab);
    const int radius = tabRadius(request.widget);
    const TabBackground state = tabBackground(*tab);
    if (state != TabBackground::Selected) {
        drawClosedTab(request, rect, *tab, radius, state);
        return true;
    }
    drawOpenTab(*request.painter, rect, *tab, radius);
    if (isCurrentTabHighlighted(request.widget)) {
        drawHighlight(*request.painter, rect, *tab, radius);
    }
    return true;
}

bool drawTear(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    const bool enabled = isEnabled(option);
    const bool isUpright = option.rect.height() > option.rect.width();
    request.painter->fillRect(option.rect, themeBrush(BrushName::TabBackgroundBrush, enabled));
    drawDashes(*request.painter, option.rect, isUpright ? Qt::Vertical : Qt::Horizontal,
               themeBrush(BrushName::ForegroundDisabledBrush, enabled));
    return true;
}

} // namespace TARN::Tabs
