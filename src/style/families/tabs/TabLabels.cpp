#include "style/families/tabs/TabLabels.h"

#include "catalogue/Names.h"
#include "resources/ThemeColorHelper.h"
#include "style/asking/Backgrounds.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/drawing/Focus.h"
#include "style/drawing/Icons.h"
#include "style/families/tabs/TabSides.h"
#include "style/text/Mnemonic.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

namespace TARN::Tabs {

namespace {

/// Between the text and what stands beside it in the tab.
constexpr int labelSpacing = 4;

/// Bold text keeps this distance from the border of its tab.
constexpr int boldTextMargin = 3;

/// Between the border of the tab and the mark of the focus.
constexpr int focusMargin = 3;

QPen textPen(const PaintRequest &request, const QStyleOptionTab &tab)
{
    const TabBackground state = tabBackground(tab);
    const bool enabled = isEnabled(tab);
    if (state == TabBackground::Selected && isCurrentTabHighlighted(request.widget)) {
        return {themeColor(ColorName::MainUpLevel1Color, enabled)};
    }
    if (!enabled) {
        // The brush is that of faint text already; its disabled twin would be hard to read.
        return {themeBrush(BrushName::ForegroundDisabledBrush, true), 1};
    }
    if (state == TabBackground::Hovered) {
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
QRect iconRect(const PaintRequest &request, const QStyleOptionTab &tab)
{
    const int extent = request.metric(QStyle::PM_SmallIconSize);
    const QSize room = tab.iconSize.isValid() ? tab.iconSize : QSize(extent, extent);
    const QSize size = tab.icon.actualSize(room, iconMode(tab), iconState(tab)).boundedTo(room);
    const QRect label = uprightRect(tab);
    const int left = label.left() + request.metric(QStyle::PM_TabBarTabHSpace) / 2 +
                     buttonRoom(tab).atStart + (room.width() - size.width()) / 2;
    const QRect rect(QPoint(left, label.center().y() - size.height() / 2), size);
    return isVertical(tab.shape) ? rect : QStyle::visualRect(tab.direction, label, rect);
}

QRect textRect(const PaintRequest &request, const QStyleOptionTab &tab)
{
    const QRect rect =
        request.proxy().subElementRect(QStyle::SE_TabBarTabText, &tab, request.widget);
    return isRightButtonAtStart(tab) ? rect.translated(-buttonExtent(tab, tab.rightButtonSize), 0)
                                     : rect;
}

/// Returns how the text of a tab is aligned and whether its mnemonic is underlined.
int textFlags(const PaintRequest &request, const QStyleOptionTab &tab)
{
    Qt::Alignment alignment = Qt::AlignCenter;
    const QVariant chosen = propertyOf(request.widget, Property::TextAlignment);
    if (chosen.isValid()) {
        alignment = chosen.userType() == qMetaTypeId<Qt::Alignment>()
                        ? chosen.value<Qt::Alignment>()
                        : Qt::Alignment(chosen.toInt());
        alignment |= alignment & Qt::AlignVertical_Mask ? Qt::Alignment() : Qt::AlignVCenter;
    }
    const auto direction = isVertical(tab.shape) ? Qt::LeftToRight : tab.direction;
    return mnemonicFlags(request) |
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
void makeRoom(Label &label, const PaintRequest &request, const QStyleOptionTab &tab, int width)
{
    const int missing = qMax(0, width - label.text.width());
    const int padding = qMax(0, request.metric(QStyle::PM_TabBarTabHSpace) / 2 - boldTextMargin);
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
bool layOutBold(Label &label, const PaintRequest &request, const QStyleOptionTab &tab)
{
    const QFontMetrics metrics = request.painter->fontMetrics();
    const int width = metrics.size(Qt::TextShowMnemonic, tab.text).width();
    Label bold = label;
    makeRoom(bold, request, tab, width);
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
void drawLabel(const PaintRequest &request, const QStyleOptionTab &tab)
{
    QPainter &painter = *request.painter;
    const bool isBold =
        tabBackground(tab) == TabBackground::Selected && !isCurrentTabHighlighted(request.widget);
    const QFont former = painter.font();
    const QFont font = labelFont(former, request.widget);
    painter.setFont(font);
    Label label{tab.icon.isNull() ? QRect() : iconRect(request, tab), textRect(request, tab)};
    if (isBold) {
        QFont bold = font;
        bold.setBold(true);
        painter.setFont(bold);
        if (!layOutBold(label, request, tab)) {
            painter.setFont(font);
        }
    }
    if (!tab.icon.isNull()) {
        const QIcon icon =
            ThemeColorHelper::getModifiedIconWithForegroundBrush(tab.icon, painter.pen().brush());
        drawIcon(painter, label.icon, icon, iconMode(tab), iconState(tab));
    }
    request.proxy().drawItemText(&painter, label.text, textFlags(request, tab), tab.palette,
                                 isEnabled(tab), tab.text);
    painter.setFont(former);
}

} // namespace

bool drawTabLabel(const PaintRequest &request)
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
    painter.setPen(textPen(request, *tab));
    drawLabel(request, *tab);
    if (isTurned) {
        painter.restore();
    }
    if (has(*tab, QStyle::State_HasFocus)) {
        drawFocusRect(request,
                      tab->rect.adjusted(focusMargin, focusMargin, -focusMargin, -focusMargin));
    }
    return true;
}

} // namespace TARN::Tabs
