#include "style/families/tabs/TabPainting.h"

#include "catalogue/Names.h"
#include "resources/ThemeColorHelper.h"
#include "style/BaseStyle.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/drawing/Drawing.h"
#include "style/families/tabs/TabSizes.h"

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

namespace TARN::Tabs {

namespace {

/// The classes of tabs, as BaseStyle::getTabBackgroundState() numbers them.
constexpr int selectedTab = 0;
constexpr int hoveredTab = 2;

constexpr int highlightThickness = 2;

/// Between the text and what stands beside it in the tab.
constexpr int labelSpacing = 4;

/// Bold text keeps this distance from the border of its tab.
constexpr int boldTextMargin = 3;

/// Between the border of the tab and the mark of the focus.
constexpr int focusMargin = 3;

/// The cross of a close button keeps this share of the button free at either side.
constexpr int closeMarginShare = 5;

struct SizeProperty
{
    const char *ofApplication;
    const char *ofTabBar;
    CornerSize radius;
};

/// The first one that is set wins, those of the application before those of the tab bar.
constexpr SizeProperty sizeProperties[] = {
    {"appSmallTabSize", "smallTabSize", CornerSize::Small},
    {"appBaseTabSize", "baseTabSize", CornerSize::Base},
    {"appMediumTabSize", "mediumTabSize", CornerSize::Medium},
    {"appLargeTabSize", "largeTabSize", CornerSize::Large},
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

int metric(const BaseStyle &style, QStyle::PixelMetric metric, const PaintRequest &request)
{
    return style.proxy()->pixelMetric(metric, request.option, request.widget);
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
QRect overlappingRect(const BaseStyle &style, const PaintRequest &request,
                      const QStyleOptionTab &tab)
{
    const bool isVerticalBar = isVertical(tab.shape);
    const bool isMirrored = !isVerticalBar && isRightToLeft(tab);
    const bool isAtEnd =
        tab.position == QStyleOptionTab::OnlyOneTab ||
        tab.position == (isMirrored ? QStyleOptionTab::Beginning : QStyleOptionTab::End);
    const int overlap = isAtEnd ? 0 : metric(style, QStyle::PM_TabBarTabOverlap, request);
    return isVerticalBar ? tab.rect.adjusted(0, 0, 0, overlap)
                         : tab.rect.adjusted(0, 0, overlap, 0);
}

const QBrush &tabBrush(int state, bool enabled)
{
    if (state == selectedTab) {
        return themeBrush(BrushName::TabBackgroundActiveBrush, enabled);
    }
    return state == hoveredTab ? themeBrush(BrushName::TabBorderMouseOverBrush, true)
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
    drawShape(painter, onHalfPixel(open), radius,
              outlinePen(BaseStyle::getBorderBrush(isEnabled(tab))),
              tabBrush(selectedTab, isEnabled(tab)), cornersAtBase(tab.shape));
    painter.restore();
}

/// Draws a tab that the page is in front of.
void drawClosedTab(const PaintRequest &request, const QRect &rect, const QStyleOptionTab &tab,
                   int radius, int state)
{
    const bool enabled = isEnabled(tab);
    QPainter &painter = *request.painter;
    drawShape(painter, onHalfPixel(rect), radius, outlinePen(BaseStyle::getBorderBrush(enabled)),
              tabBrush(state, enabled), cornersAtBase(tab.shape));
    if (!enabled && request.widget && request.widget->isEnabled()) {
        // The line below the tabs belongs to the page, which a single disabled tab does not dim.
        painter.fillRect(baseSide(rect, tab.shape, 1) & rect, BaseStyle::getBorderBrush(true));
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

QPen textPen(const BaseStyle &style, const PaintRequest &request, const QStyleOptionTab &tab)
{
    const int state = style.getTabBackgroundState(tab);
    const bool enabled = isEnabled(tab);
    if (state == selectedTab && isCurrentTabHighlighted(request.widget)) {
        return {themeColor(ColorName::MainUpLevel1Color, enabled)};
    }
    if (!enabled) {
        // The brush is that of faint text already; its disabled twin would be hard to read.
        return {themeBrush(BrushName::ForegroundDisabledBrush, true), 1};
    }
    if (state == hoveredTab) {
        return {themeBrush(BrushName::TabForegroundMouseOverBrush, true), 1};
    }
    // The palette holds the colour that the application gave this very tab.
    return {tab.palette.brush(QPalette::WindowText), 1};
}

/// Returns the rectangle of the label of \a tab, laid out horizontally, before it is turned.
QRect uprightRect(const QStyleOptionTab &tab)
{
    return isVertical(tab.shape) ? QRect(0, 0, tab.rect.height(), tab.rect.width()) : tab.rect;
}

/// Turns the painter so that uprightRect() comes to lie in the tab: texts at the left are read
/// upwards, those at the right downwards.
void turn(QPainter &painter, const QStyleOptionTab &tab)
{
    if (isEast(tab.shape)) {
        painter.translate(tab.rect.left() + tab.rect.width(), tab.rect.top());
        painter.rotate(90);
    } else {
        painter.translate(tab.rect.left(), tab.rect.top() + tab.rect.height());
        painter.rotate(-90);
    }
}

/// Returns the extent along the bar that a button in the tab takes.
int buttonExtent(const QStyleOptionTab &tab, const QSize &button)
{
    if (button.isEmpty()) {
        return 0;
    }
    return labelSpacing + (isVertical(tab.shape) ? button.height() : button.width());
}

/// Tells whether the right button stands where the label of the mirrored tab begins: it keeps to
/// the right end of its tab in either direction, but the common layout leaves it room at the left.
bool isRightButtonAtStart(const QStyleOptionTab &tab)
{
    return isRightToLeft(tab) &&
           (tab.shape == QTabBar::RoundedNorth || tab.shape == QTabBar::RoundedSouth);
}

/// The extents along the bar that the buttons take before and after the label.
struct ButtonRoom
{
    int atStart;
    int atEnd;
};

ButtonRoom buttonRoom(const QStyleOptionTab &tab)
{
    const int left = buttonExtent(tab, tab.leftButtonSize);
    const int right = buttonExtent(tab, tab.rightButtonSize);
    return isRightButtonAtStart(tab) ? ButtonRoom{left + right, 0} : ButtonRoom{left, right};
}

QIcon::Mode iconMode(const QStyleOptionTab &tab)
{
    return isEnabled(tab) ? QIcon::Normal : QIcon::Disabled;
}

QIcon::State iconState(const QStyleOptionTab &tab)
{
    return has(tab, QStyle::State_Selected) ? QIcon::On : QIcon::Off;
}

/// Returns where the icon stands: where the common layout of tabs, which places the text, has it.
QRect iconRect(const BaseStyle &style, const PaintRequest &request, const QStyleOptionTab &tab)
{
    const int extent = metric(style, QStyle::PM_SmallIconSize, request);
    const QSize room = tab.iconSize.isValid() ? tab.iconSize : QSize(extent, extent);
    const QSize size = tab.icon.actualSize(room, iconMode(tab), iconState(tab)).boundedTo(room);
    const QRect label = uprightRect(tab);
    const int left = label.left() + metric(style, QStyle::PM_TabBarTabHSpace, request) / 2 +
                     buttonRoom(tab).atStart + (room.width() - size.width()) / 2;
    const QRect rect(QPoint(left, label.center().y() - size.height() / 2), size);
    return isVertical(tab.shape) ? rect : QStyle::visualRect(tab.direction, label, rect);
}

QRect textRect(const BaseStyle &style, const PaintRequest &request, const QStyleOptionTab &tab)
{
    const QRect rect =
        style.proxy()->subElementRect(QStyle::SE_TabBarTabText, &tab, request.widget);
    return isRightButtonAtStart(tab) ? rect.translated(-buttonExtent(tab, tab.rightButtonSize), 0)
                                     : rect;
}

/// Returns how the text of a tab is aligned and whether its mnemonic is underlined.
int textFlags(const BaseStyle &style, const PaintRequest &request, const QStyleOptionTab &tab)
{
    Qt::Alignment alignment = Qt::AlignCenter;
    const QVariant chosen = propertyOf(request.widget, "textAlignment");
    if (chosen.isValid()) {
        alignment = chosen.userType() == qMetaTypeId<Qt::Alignment>()
                        ? chosen.value<Qt::Alignment>()
                        : Qt::Alignment(chosen.toInt());
        alignment |= alignment & Qt::AlignVertical_Mask ? Qt::Alignment() : Qt::AlignVCenter;
    }
    const auto direction = isVertical(tab.shape) ? Qt::LeftToRight : tab.direction;
    return mnemonicFlags(style, request) |
           int(QStyle::visualAlignment(direction, alignment) | Qt::AlignAbsolute);
}

/// Where the parts of a label stand.
struct Label
{
    QRect icon;
    QRect text;
};

/// Makes the room in \a label that bold text of \a width needs and its tab was not measured for, as
/// far as the padding of the tab has it where no button stands.
void makeRoom(Label &label, const BaseStyle &style, const PaintRequest &request,
              const QStyleOptionTab &tab, int width)
{
    const int missing = qMax(0, width - label.text.width());
    const int padding =
        qMax(0, metric(style, QStyle::PM_TabBarTabHSpace, request) / 2 - boldTextMargin);
    const ButtonRoom buttons = buttonRoom(tab);
    const bool isStartFree = buttons.atStart == 0;
    const bool isEndFree = buttons.atEnd == 0;
    const int atStart = isStartFree ? qMin(isEndFree ? (missing + 1) / 2 : missing, padding) : 0;
    const int atEnd = isEndFree ? qMin(missing - atStart, padding) : 0;
    const bool isMirrored = !isVertical(tab.shape) && isRightToLeft(tab);
    label.icon.translate(isMirrored ? atStart : -atStart, 0);
    label.text = isMirrored ? label.text.adjusted(-atEnd, 0, atStart, 0)
                            : label.text.adjusted(-atStart, 0, atEnd, 0);
}

/// Lays out \a label for bold text, in the font of the painter. Returns whether there is room for
/// it: a text that is cut off would say less than one that is not bold.
bool layOutBold(Label &label, const BaseStyle &style, const PaintRequest &request,
                const QStyleOptionTab &tab)
{
    const QFontMetrics metrics = request.painter->fontMetrics();
    const int width = metrics.size(Qt::TextShowMnemonic, tab.text).width();
    Label bold = label;
    makeRoom(bold, style, request, tab, width);
    if (width > bold.text.width()) {
        return false;
    }
    label = bold;
    return true;
}

/// Returns the font of a label: the painter's, unless that is the one that every painter begins
/// with. The toolkit gives no other to the painter of a tab that is being moved.
QFont labelFont(const QFont &font, const QWidget *tabBar)
{
    return tabBar && font == QGuiApplication::font() ? tabBar->font() : font;
}

/// Draws the label with the pen of the painter.
void drawLabel(const BaseStyle &style, const PaintRequest &request, const QStyleOptionTab &tab)
{
    QPainter &painter = *request.painter;
    const bool isBold =
        style.getTabBackgroundState(tab) == selectedTab && !isCurrentTabHighlighted(request.widget);
    const QFont former = painter.font();
    const QFont font = labelFont(former, request.widget);
    painter.setFont(font);
    Label label{tab.icon.isNull() ? QRect() : iconRect(style, request, tab),
                textRect(style, request, tab)};
    if (isBold) {
        QFont bold = font;
        bold.setBold(true);
        painter.setFont(bold);
        if (!layOutBold(label, style, request, tab)) {
            painter.setFont(font);
        }
    }
    if (!tab.icon.isNull()) {
        const QIcon icon =
            ThemeColorHelper::getModifiedIconWithForegroundBrush(tab.icon, painter.pen().brush());
        drawIcon(painter, label.icon, icon, iconMode(tab), iconState(tab));
    }
    style.proxy()->drawItemText(&painter, label.text, textFlags(style, request, tab), tab.palette,
                                isEnabled(tab), tab.text);
    painter.setFont(former);
}

/// Returns what the tabs hide of the outline of the page. A stretched bar goes on behind its last
/// tab, where nothing but the page draws a line.
QRect coveredByTabs(const QStyleOptionTabWidgetFrame &frame, const QWidget *widget)
{
    const auto *tabWidget = qobject_cast<const QTabWidget *>(widget);
    if (!tabWidget || !isSet(tabWidget, "stretched")) {
        return frame.tabBarRect;
    }
    const QTabBar &tabBar = *tabWidget->tabBar();
    const QRect tabs = tabBar.tabRect(0) | tabBar.tabRect(tabBar.count() - 1);
    return tabs.translated(frame.tabBarRect.topLeft()) & frame.tabBarRect;
}

} // namespace

bool drawWidgetFrame(const BaseStyle & /*style*/, const PaintRequest &request)
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
        drawShape(painter, onHalfPixel(rect), 0, outlinePen(BaseStyle::getBorderBrush(enabled)),
                  Qt::NoBrush);
        painter.restore();
    }
    return true;
}

bool drawBarBase(const BaseStyle & /*style*/, const PaintRequest &request)
{
    const auto *base = qstyleoption_cast<const QStyleOptionTabBarBase *>(request.option);
    if (!base) {
        return false;
    }
    // The side of the base that the tabs touch is the outer one of the page.
    const QRect line = outerSide(base->rect, base->shape, 1) & base->rect;
    // The current tab is open towards its page.
    for (const QRect &part : QRegion(line) - base->selectedTabRect) {
        request.painter->fillRect(part, BaseStyle::getBorderBrush(isEnabled(*base)));
    }
    return true;
}

bool drawCloseIndicator(const BaseStyle &style, const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    QPainter &painter = *request.painter;
    const BaseStyle::ButtonBrushes brushes = BaseStyle::buttonBrushes(&option, request.widget);
    const QSize size(metric(style, QStyle::PM_TabCloseIndicatorWidth, request),
                     metric(style, QStyle::PM_TabCloseIndicatorHeight, request));
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

bool drawTabShape(const BaseStyle &style, const PaintRequest &request)
{
    const auto *tab = qstyleoption_cast<const QStyleOptionTab *>(request.option);
    if (!tab) {
        return false;
    }
    const QRect rect = overlappingRect(style, request, *tab);
    const int radius = tabRadius(request.widget);
    const int state = style.getTabBackgroundState(*tab);
    if (state != selectedTab) {
        drawClosedTab(request, rect, *tab, radius, state);
        return true;
    }
    drawOpenTab(*request.painter, rect, *tab, radius);
    if (isCurrentTabHighlighted(request.widget)) {
        drawHighlight(*request.painter, rect, *tab, radius);
    }
    return true;
}

bool drawTabLabel(const BaseStyle &style, const PaintRequest &request)
{
    const auto *tab = qstyleoption_cast<const QStyleOptionTab *>(request.option);
    if (!tab) {
        return false;
    }
    QPainter &painter = *request.painter;
    const bool isTurned = isVertical(tab->shape);
    if (isTurned) {
        painter.save();
        turn(painter, *tab);
    }
    painter.setPen(textPen(style, request, *tab));
    drawLabel(style, request, *tab);
    if (isTurned) {
        painter.restore();
    }
    if (has(*tab, QStyle::State_HasFocus)) {
        drawFocusRect(style, request,
                      tab->rect.adjusted(focusMargin, focusMargin, -focusMargin, -focusMargin));
    }
    return true;
}

} // namespace TARN::Tabs
