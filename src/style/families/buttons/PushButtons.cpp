#include "style/families/buttons/PushButtons.h"

#include "catalogue/Names.h"
#include "resources/ThemeColorHelper.h"
#include "resources/kept/ProcessCache.h"
#include "style/BaseStyle.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/drawing/Drawing.h"
#include "style/families/buttons/ToolButtons.h"
#include "style/tables/Geometry.h"
#include "style/watching/ButtonIcons.h"

#include <QtCore/QtMath>
#include <QtGui/QPainter>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWidget>

namespace TARN::Buttons {

namespace {

QStyleOptionButton asButtonOption(const QStyleOption &option)
{
    QStyleOptionButton button;
    button.QStyleOption::operator=(option);
    button.version = QStyleOptionButton::Version;
    button.type = QStyleOptionButton::Type;
    return button;
}

QBrush textBrush(bool enabled)
{
    const QColor &color = themeColor(ColorName::ForegroundColor, enabled);
    return color.isValid() ? QBrush(color) : QBrush(Qt::NoBrush);
}

/// Tells whether the face of an outline button is left out: at rest it is nothing but its outline.
bool isHollow(const PaintRequest &request)
{
    return !has(*request.option, QStyle::State_On) && !has(*request.option, QStyle::State_Sunken) &&
           !isHovered(*request.option) && isSet(request.widget, "outline");
}

/// Tells whether a button is of a kind that a theme has brushes for.
bool hasKind(const QWidget *widget)
{
    return isSet(widget, "highlighted") || !propertyOf(widget, "Status").toString().isEmpty() ||
           !propertyOf(widget, "Order").toString().isEmpty() ||
           !propertyOf(widget, "ButtonType").toString().isEmpty();
}

/// Tells whether a push button shows a face: a plain flat one only does while it is pressed or
/// checked, and a command link under the mouse, too. The texts of default buttons and of kinds are
/// legible on their faces only.
bool hasFace(const QStyleOptionButton &button, const QWidget *widget)
{
    const bool isLink = button.features.testFlag(QStyleOptionButton::CommandLinkButton);
    if (!isLink && !button.features.testFlag(QStyleOptionButton::Flat)) {
        return true;
    }
    if (has(button, QStyle::State_Sunken) || has(button, QStyle::State_On) || hasKind(widget)) {
        return true;
    }
    if (isLink) {
        return has(button, QStyle::State_MouseOver);
    }
    return button.features.testFlag(QStyleOptionButton::DefaultButton) && isEnabled(button) &&
           has(button, QStyle::State_Active);
}

/// Tells whether a panel is the arrow part of a push button that is split in two, which is known by
/// its width.
bool isMenuPart(const BaseStyle &style, const PaintRequest &request)
{
    const int width = request.option->rect.width();
    return qobject_cast<const QPushButton *>(request.widget) && width < request.widget->width() &&
           width == menuColumnWidth(style, request);
}

/// The arrow part of a split button reaches one pixel into the face, so that both share one line.
QRectF panelRect(const BaseStyle &style, const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    QRectF rect = onHalfPixel(option.rect);
    if (ToolButtons::isMenuPart(option) || isMenuPart(style, request)) {
        const qreal shared = 1.0;
        rect.adjust(isRightToLeft(option) ? 0 : -shared, 0, isRightToLeft(option) ? shared : 0, 0);
    }
    return rect;
}

int panelRadius(const PaintRequest &request)
{
    if (!isSet(request.widget, "circular")) {
        return cornerRadius(CornerSize::Base);
    }
    // Half of an odd side is rounded up; the shape itself limits the radius to the exact half.
    return (qMin(request.option->rect.width(), request.option->rect.height()) + 1) / 2;
}

/// Returns \a rect, made so small that its corners stay inside of the circle in \a face.
QRect insideOfCircle(const QRect &rect, const QRect &face)
{
    constexpr qreal margin = 0.15; // at each side of the largest square in a circle of diameter 1
    const int inset = qCeil(margin * qMin(face.width(), face.height()));
    return rect & face.adjusted(inset, inset, -inset, -inset);
}

QPen borderPen(const QBrush &border)
{
    return border.style() == Qt::NoBrush ? QPen(Qt::NoPen) : outlinePen(border);
}

const QColor &dangerColor(const PaintRequest &request)
{
    return themeColor(ColorName::StatusDangerColor, isEnabled(*request.option));
}

QPen panelPen(const QBrush &border, const QBrush &face, const PaintRequest &request)
{
    if (isSet(request.widget, "drawErrorIndicator")) {
        return borderPen(dangerColor(request));
    }
    // A face without a frame keeps its size: its own brush takes the place of the line.
    return borderPen(isSet(request.widget, "frameless") ? face : border);
}

/// Tells whether \a option has been given \a brush for its label already, its icon included.
bool isPrepared(const QStyleOptionButton &option, const QBrush &brush)
{
    return option.palette.isBrushSet(option.palette.currentColorGroup(), QPalette::ButtonText) &&
           option.palette.buttonText() == brush;
}

QPixmap labelPixmap(const QStyleOptionButton &button, const QBrush &brush, const QWidget *widget)
{
    const QIcon icon =
        isPrepared(button, brush)
            ? button.icon
            : ThemeColorHelper::getModifiedIconWithForegroundBrush(button.icon, brush);
    const QIcon::Mode enabledMode =
        has(button, QStyle::State_HasFocus) ? QIcon::Active : QIcon::Normal;
    return iconPixmap(icon, button.iconSize, isEnabled(button) ? enabledMode : QIcon::Disabled,
                      has(button, QStyle::State_On) ? QIcon::On : QIcon::Off, widget);
}

/// Draws the icon of a label so that icon and text together are in the middle of \a room. Returns
/// the room for the text.
QRect drawLabelIcon(const BaseStyle &style, const PaintRequest &request,
                    const QStyleOptionButton &button, const QRect &room, const QBrush &brush)
{
    constexpr int spacing = 4; // which is what push buttons add to their size hints
    const QPixmap pixmap = labelPixmap(button, brush, request.widget);
    const QSize size = sizeOf(pixmap);
    const int textWidth =
        button.text.isEmpty()
            ? 0
            : spacing + button.fontMetrics.size(Qt::TextShowMnemonic, button.text).width();
    // A text that is too long runs out of the button at its end, and the icon remains.
    const int left = room.left() + qMax(0, (room.width() - size.width() - textWidth) / 2);
    const QRect icon(left, room.top() + (room.height() - size.height()) / 2, size.width(),
                     size.height());
    drawItemPixmap(style, *request.painter, QStyle::visualRect(button.direction, room, icon),
                   pixmap);
    const QRect text(QPoint(icon.right() + 1 + spacing, room.top()), room.bottomRight());
    return QStyle::visualRect(button.direction, room, text);
}

} // namespace

QSize pushButtonSize(const BaseStyle &style, const ContentsRequest &request)
{
    ContentsRequest raised = request;
    const int iconSize =
        style.proxy()->pixelMetric(QStyle::PM_ButtonIconSize, request.option, request.widget);
    raised.contents.setHeight(qMax(request.contents.height(), iconSize));
    return baseSize(style, raised);
}

QSize toolButtonSize(const BaseStyle &style, const ContentsRequest &request)
{
    QSize size = baseSize(style, request);
    const auto *option = qstyleoption_cast<const QStyleOptionToolButton *>(request.option);
    if (!option) {
        return size;
    }
    if (request.widget && ToolButtons::showsMenuArrow(*option, request.widget)) {
        size.rwidth() += style.proxy()->pixelMetric(QStyle::PM_MenuButtonIndicator, request.option,
                                                    request.widget);
    }
    // An even height keeps the icon on whole pixels.
    size.rheight() += size.height() % 2;
    return size;
}

int pushButtonHeight(const BaseStyle &style, const ContentsRequest &request)
{
    if (qstyleoption_cast<const QStyleOptionButton *>(request.option)) {
        return style
            .sizeFromContents(QStyle::CT_PushButton, request.option, request.contents,
                              request.widget)
            .height();
    }
    const QStyleOptionButton option = asButtonOption(*request.option);
    return style.sizeFromContents(QStyle::CT_PushButton, &option, request.contents, request.widget)
        .height();
}

void polishCommandLink(BaseStyle &style, QWidget &widget)
{
    tintOnPaint(style, widget);
}

QBrush labelBrush(const QBrush &foreground, bool enabled)
{
    if (foreground.style() != Qt::NoBrush) {
        return foreground;
    }
    static ProcessCached<QBrush> brush([] { return textBrush(true); });
    static ProcessCached<QBrush> disabledBrush([] { return textBrush(false); });
    return enabled ? brush.value() : disabledBrush.value();
}

QPalette labelPalette(const QStyleOption &option, const QBrush &brush)
{
    QPalette palette = option.palette;
    if (!isEnabled(option)) {
        palette.setCurrentColorGroup(QPalette::Disabled);
    }
    return paletteWith(palette, QPalette::ButtonText, brush);
}

int menuColumnWidth(const BaseStyle &style, const PaintRequest &request)
{
    return style.proxy()->pixelMetric(QStyle::PM_MenuButtonIndicator, request.option,
                                      request.widget);
}

void drawFocus(const BaseStyle &style, const PaintRequest &request, const QPalette &palette,
               const QRect &rect)
{
    if (!has(*request.option, QStyle::State_HasFocus)) {
        return;
    }
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(*request.option);
    focus.rect =
        isSet(request.widget, "circular") ? insideOfCircle(rect, request.option->rect) : rect;
    // The line is drawn in the text colour: that of the button stands out from every face.
    focus.palette = paletteWith(palette, QPalette::Text, palette.buttonText());
    style.proxy()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, request.painter,
                                 request.widget);
}

QRect menuColumn(const QRect &contents, int width, Qt::LayoutDirection direction)
{
    constexpr int margin = 2; // keeps the arrow clear of the focus rectangle
    return QStyle::visualRect(direction, contents,
                              contents.adjusted(contents.width() - width - margin, 0, -margin, 0));
}

QRect besideMenuColumn(const QRect &contents, int width, Qt::LayoutDirection direction)
{
    return QStyle::visualRect(direction, contents, contents.adjusted(0, 0, -width, 0));
}

bool drawDefaultFrame(const BaseStyle & /*style*/, const PaintRequest &request)
{
    if (!qstyleoption_cast<const QStyleOptionButton *>(request.option)) {
        return false;
    }
    const QBrush border = BaseStyle::buttonBrushes(request.option, request.widget).border;
    drawShape(*request.painter, onHalfPixel(request.option->rect), panelRadius(request),
              borderPen(border), Qt::NoBrush);
    return true;
}

bool drawPanel(const BaseStyle &style, const PaintRequest &request)
{
    const BaseStyle::ButtonBrushes brushes =
        BaseStyle::buttonBrushes(request.option, request.widget);
    const QRectF rect = panelRect(style, request);
    const int radius = panelRadius(request);
    const QBrush face = isHollow(request) ? QBrush(Qt::NoBrush) : brushes.background;
    const QPen pen = panelPen(brushes.border, face, request);
    if (request.widget && isA(request.widget->parent(), "TARN::Components::ButtonGroupWidget")) {
        request.painter->setRenderHint(QPainter::Antialiasing, radius > 0);
        request.painter->setPen(pen);
        request.painter->setBrush(face);
        style.drawButtonGroup(rect, request.painter, request.option, radius, brushes,
                              request.widget);
    } else {
        drawShape(*request.painter, rect, radius, pen, face,
                  ToolButtons::straightCorners(*request.option));
    }
    if (isSet(request.widget, "drawErrorIndicator")) {
        Helpers::drawInputStatusIndicator(rect, radius, dangerColor(request), request.painter);
    }
    return true;
}

bool drawPushButton(const BaseStyle &style, const PaintRequest &request)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(request.option);
    if (!button) {
        return false;
    }
    const QStyle &proxy = *style.proxy();
    // The bevel prepares the option for the label, so that the label is not prepared again.
    proxy.drawControl(QStyle::CE_PushButtonBevel, button, request.painter, request.widget);
    QStyleOptionButton label = *button;
    label.rect = proxy.subElementRect(QStyle::SE_PushButtonContents, button, request.widget);
    proxy.drawControl(QStyle::CE_PushButtonLabel, &label, request.painter, request.widget);
    drawFocus(style, request, button->palette,
              proxy.subElementRect(QStyle::SE_PushButtonFocusRect, button, request.widget));
    return true;
}

bool drawBevel(const BaseStyle &style, const PaintRequest &request)
{
    if (!qstyleoption_cast<const QStyleOptionButton *>(request.option)) {
        return false;
    }
    const auto *button =
        style.commonCallButtonText<QStyleOptionButton>(request.option, request.widget);
    const QStyle &proxy = *style.proxy();
    if (hasFace(*button, request.widget)) {
        proxy.drawPrimitive(QStyle::PE_PanelButtonCommand, button, request.painter, request.widget);
    } else if (button->features.testFlag(QStyleOptionButton::DefaultButton)) {
        // With a face, the outline of the face already is this frame.
        proxy.drawPrimitive(QStyle::PE_FrameDefaultButton, button, request.painter, request.widget);
    }
    if (button->features.testFlag(QStyleOptionButton::HasMenu)) {
        QStyleOptionButton arrow = *button;
        const QRect contents =
            proxy.subElementRect(QStyle::SE_PushButtonContents, button, request.widget);
        arrow.rect = menuColumn(contents, menuColumnWidth(style, request), button->direction);
        proxy.drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, request.painter, request.widget);
    }
    return true;
}

bool drawLabel(const BaseStyle &style, const PaintRequest &request)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(request.option);
    if (!button) {
        return false;
    }
    const QBrush brush =
        labelBrush(BaseStyle::buttonBrushes(button, request.widget).foreground, isEnabled(*button));
    QRect room = button->rect;
    if (button->features.testFlag(QStyleOptionButton::HasMenu)) {
        room = besideMenuColumn(room, menuColumnWidth(style, request), button->direction);
    }
    int flags = Qt::AlignCenter;
    if (!button->icon.isNull()) {
        room = drawLabelIcon(style, request, *button, room, brush);
        flags = int(QStyle::visualAlignment(button->direction, Qt::AlignLeft)) | Qt::AlignVCenter;
    }
    style.proxy()->drawItemText(request.painter, room, flags | mnemonicFlags(style, request),
                                labelPalette(*button, brush), isEnabled(*button), button->text,
                                QPalette::ButtonText);
    return true;
}

} // namespace TARN::Buttons

namespace TARN {

namespace {

/// Where a button stands among the visible ones of its group.
struct GroupPlace
{
    bool isHorizontal;
    int count;
    int index; ///< -1 for a button that is not visible

    bool isFirst() const { return index == 0; }
    bool isLast() const { return index == count - 1; }
    bool isHidden() const { return index == -1; }
};

GroupPlace groupPlace(const QWidget *widget)
{
    const QObject *group = widget ? widget->parent() : nullptr;
    return {propertyOf(group, "orientation").toInt() == Qt::Horizontal,
            propertyOf(group, "ButtonGroupWidget_VisibleCount").toInt(),
            propertyOf(widget, "Button_VisibleIndex").toInt()};
}

/// Returns the corners at which a button adjoins others of its group. The places count from the
/// left, whatever the direction of the layout is.
Helpers::StraightCornerFlags innerCorners(const GroupPlace &place)
{
    using namespace Helpers;
    if (place.count == 1) {
        return NoStraightCorner;
    }
    if (place.isFirst()) {
        return place.isHorizontal ? StraightTopRight | StraightBottomRight
                                  : StraightBottomRight | StraightBottomLeft;
    }
    if (place.isLast()) {
        return place.isHorizontal ? StraightTopLeft | StraightBottomLeft
                                  : StraightTopLeft | StraightTopRight;
    }
    return StraightTopLeft | StraightTopRight | StraightBottomRight | StraightBottomLeft;
}

bool isDrawnInGroup(const GroupPlace &place)
{
    return place.count == 1 || place.isFirst() || place.isLast() || !place.isHidden();
}

/// Draws the dots of \a extent at the ends of a step of a workflow at which others may follow: a
/// single step has one, too.
void drawLinkDots(QPainter &painter, const QRectF &rect, int extent, const GroupPlace &place)
{
    const bool endsHere = place.isLast() && !place.isFirst();
    const bool hasNone = place.isHidden() && !place.isLast();
    const QSizeF dot(extent, extent);
    const QPointF middle = rect.center() - QPointF(extent / 2.0, extent / 2.0);
    if (!place.isFirst() && !hasNone) {
        painter.drawEllipse(QRectF(place.isHorizontal ? QPointF(rect.left(), middle.y())
                                                      : QPointF(middle.x(), rect.top()),
                                   dot));
    }
    if (!endsHere && !hasNone) {
        painter.drawEllipse(QRectF(place.isHorizontal ? QPointF(rect.right() - extent, middle.y())
                                                      : QPointF(middle.x(), rect.bottom() - extent),
                                   dot));
    }
}

} // namespace

void BaseStyle::drawButtonGroup(const QRectF &rect, QPainter *painter, const QStyleOption *option,
                                int radius, ButtonBrushes brushes, const QWidget *widget) const
{
    const GroupPlace place = groupPlace(widget);
    if (!isSet(widget ? widget->parent() : nullptr, "ButtonGroupWidget_Workflow")) {
        if (isDrawnInGroup(place)) {
            Helpers::drawRoundedRectShape(rect, radius, innerCorners(place), painter);
        }
        return;
    }
    const int spacing = proxy()->pixelMetric(PM_RadioButtonLabelSpacing, option, widget);
    const qreal margin = spacing / 2.0;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    Helpers::drawRoundedRectShape(rect.adjusted(margin, margin, -margin, -margin),
                                  int((rect.height() - spacing) / 2), Helpers::NoStraightCorner,
                                  painter);
    painter->setBrush(brushes.border);
    // The ring around a dot is the ground of the group, which has one look only.
    painter->setPen(outlinePen(themeBrush(BrushName::ListBackgroundBrush, true)));
    drawLinkDots(*painter, rect, spacing, place);
}

template <typename ButtonOption>
const ButtonOption *BaseStyle::commonCallButtonText(const QStyleOption *option,
                                                    const QWidget *widget) const
{
    // The caller's own option is prepared, so that whatever it paints next matches the label.
    auto *button = const_cast<ButtonOption *>(static_cast<const ButtonOption *>(option));
    useForeground(*button, buttonBrushes(option, widget).foreground);
    return button;
}

template MOX_COMMON_THEME_EXPORT const QStyleOptionButton *
BaseStyle::commonCallButtonText<QStyleOptionButton>(const QStyleOption *option,
                                                    const QWidget *widget) const;

} // namespace TARN
