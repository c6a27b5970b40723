#include "style/families/CheckBoxes.h"

#include "catalogue/Names.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/brushes/InputBrushes.h"
#include "style/drawing/Focus.h"
#include "style/drawing/Icons.h"
#include "style/drawing/Marks.h"
#include "style/drawing/Shapes.h"
#include "style/text/Mnemonic.h"

#include <QtCore/QtMath>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

#include <cmath>

namespace TARN::CheckBoxes {

namespace {

/// What a check box and a radio button are put together from.
struct Parts
{
    QStyle::SubElement indicatorRect;
    QStyle::PrimitiveElement indicator;
    QStyle::SubElement contentsRect;
    QStyle::ControlElement label;
    QStyle::SubElement focusRect;
};

constexpr Parts checkBoxParts{QStyle::SE_CheckBoxIndicator, QStyle::PE_IndicatorCheckBox,
                              QStyle::SE_CheckBoxContents, QStyle::CE_CheckBoxLabel,
                              QStyle::SE_CheckBoxFocusRect};
constexpr Parts radioButtonParts{QStyle::SE_RadioButtonIndicator, QStyle::PE_IndicatorRadioButton,
                                 QStyle::SE_RadioButtonContents, QStyle::CE_RadioButtonLabel,
                                 QStyle::SE_RadioButtonFocusRect};

QBrush borderBrush(const PaintRequest &request, bool isStressed)
{
    const QStyleOption &option = *request.option;
    const bool enabled = isEnabled(option);
    if (isInError(request.widget)) {
        return errorBrush(enabled);
    }
    return isStressed ? themeBrush(BrushName::MainBrush, enabled)
                      : themeBrush(BrushName::ControlBorderBrush, enabled);
}

/// Tells whether the mouse or the keyboard is at the control.
bool isAttended(const QStyleOption &option)
{
    return isHovered(option) || hasKeyboardFocus(option);
}

/// A check box that is pressed has the outline of one at rest.
QBrush checkBoxBorder(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    return borderBrush(request, isAttended(option) && !has(option, QStyle::State_Sunken));
}

/// A radio button keeps the outline that it has under the mouse while it is pressed.
QBrush radioButtonBorder(const PaintRequest &request)
{
    return borderBrush(request, isAttended(*request.option));
}

const QBrush &markBrush(const QStyleOption &option)
{
    return isHovered(option) ? themeBrush(BrushName::ForegroundMouseOverBrush, true)
                             : themeBrush(BrushName::ForegroundBrush, isEnabled(option));
}

/// Draws the box or the circle, which keeps its ground when it is checked: the mark stands out
/// from no other.
void drawBox(const PaintRequest &request, const QBrush &border, int radius)
{
    const QStyleOption &option = *request.option;
    QPen pen = outlinePen(border);
    // A pressed one has a thicker outline. Two outlines beside each other
    // would leave a gap at some scales.
    const bool isPressed = has(option, QStyle::State_Sunken);
    const qreal inset = isPressed ? 1.0 : 0.5;
    if (isPressed) {
        pen.setWidth(2);
    }
    drawShape(*request.painter, QRectF(option.rect).adjusted(inset, inset, -inset, -inset), radius,
              pen, themeBrush(BrushName::ControlBackgroundBrush, isEnabled(option)));
}

/// Returns the radius at which a shape over \a rect has no straight edge along its shorter side.
int roundRadius(const QRectF &rect)
{
    return qCeil(qMin(rect.width(), rect.height()) / 2);
}

int indicatorMetric(const PaintRequest &request, QStyle::PixelMetric metric)
{
    return request.metric(metric);
}

/// Returns the dash that marks what is partially checked: a quarter of the indicator's width thick,
/// and clear of the box by two pixels at both ends.
QRect partialMarkRect(const PaintRequest &request)
{
    const QRect box = withinReach(request.option->rect);
    const int width = indicatorMetric(request, QStyle::PM_IndicatorWidth);
    const int height = indicatorMetric(request, QStyle::PM_IndicatorHeight);
    const int thickness = qRound(width * 0.25);
    // On whole pixels in the middle when it is even or odd as the box is.
    const QSize size(height - 6, thickness + (box.height() - thickness) % 2);
    return QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, box);
}

void drawCheckState(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    if (has(option, QStyle::State_NoChange)) {
        drawShape(*request.painter, partialMarkRect(request), cornerRadius(CornerSize::Base),
                  Qt::NoPen, markBrush(option));
    } else if (has(option, QStyle::State_On)) {
        drawCheckMark(*request.painter, option.rect, markBrush(option));
    }
}

/// Returns how far the middle of the knob is from the end at which it is off, between the ends of
/// the track at which the knob has the same distance to three sides.
qreal knobOffset(const QStyleOption &option, qreal trackWidth, qreal endDistance)
{
    if (has(option, QStyle::State_NoChange)) {
        return trackWidth / 2;
    }
    return has(option, QStyle::State_On) ? trackWidth - endDistance : endDistance;
}

/// Returns \a square on as many whole pixels of the device in width as in height, so that a round
/// shape in it is round.
QRectF squareOnPixels(const QPainter &painter, const QRectF &square)
{
    const QTransform &transform = painter.deviceTransform();
    if (transform.type() != QTransform::TxScale || transform.m11() <= 0 || transform.m22() <= 0) {
        return square;
    }
    const QRectF onDevice = transform.mapRect(square);
    const QSizeF size(std::round(onDevice.width()), std::round(onDevice.height()));
    const QPointF corner(std::round(onDevice.left()), std::round(onDevice.top()));
    return transform.inverted().mapRect(QRectF(corner, size));
}

QRectF knobRect(const PaintRequest &request, const QRectF &track)
{
    const QStyleOption &option = *request.option;
    const int width = indicatorMetric(request, QStyle::PM_IndicatorWidth);
    const int height = indicatorMetric(request, QStyle::PM_IndicatorHeight);
    // Two pixels of the track are seen around the knob, and one around a pressed one.
    const int diameter = height - (has(option, QStyle::State_Sunken) ? 4 : 6);
    const qreal offset = knobOffset(option, track.width(), width * 0.25);
    const qreal x = isRightToLeft(option) ? track.right() - offset : track.left() + offset;
    return {x - diameter / 2.0, track.center().y() - diameter / 2.0, qreal(diameter),
            qreal(diameter)};
}

void drawSwitch(const PaintRequest &request)
{
    constexpr int trackRadius = 8;
    const QStyleOption &option = *request.option;
    const bool enabled = isEnabled(option);
    const bool isOn = has(option, QStyle::State_On);
    const QRectF track = onHalfPixel(option.rect);
    // Filled in the main colour, so that what is on is seen without comparing the ends.
    drawShape(*request.painter, track, trackRadius, outlinePen(checkBoxBorder(request)),
              isOn ? themeBrush(BrushName::MainBrush, enabled)
                   : themeBrush(BrushName::ControlBackgroundBrush, enabled));
    const QRectF knob = squareOnPixels(*request.painter, knobRect(request, track));
    drawShape(*request.painter, knob, roundRadius(knob), Qt::NoPen,
              isOn ? themeBrush(BrushName::SwitchForegroundCheckedEllipseBrush, enabled)
                   : themeBrush(BrushName::SwitchEllipseBrush, enabled));
}

bool drawParts(const PaintRequest &request, const Parts &parts)
{
    const auto *option = qstyleoption_cast<const QStyleOptionButton *>(request.option);
    if (!option) {
        return false;
    }
    const QStyle &proxy = request.proxy();
    QStyleOptionButton part(*option);
    part.rect = proxy.subElementRect(parts.indicatorRect, option, request.widget);
    proxy.drawPrimitive(parts.indicator, &part, request.painter, request.widget);
    part.rect = proxy.subElementRect(parts.contentsRect, option, request.widget);
    proxy.drawControl(parts.label, &part, request.painter, request.widget);
    if (has(*option, QStyle::State_HasFocus)) {
        drawFocusRect(request, proxy.subElementRect(parts.focusRect, option, request.widget));
    }
    return true;
}

QPixmap labelPixmap(const QStyleOptionButton &option, const QWidget *widget)
{
    return iconPixmap(option.icon, option.iconSize,
                      isEnabled(option) ? QIcon::Normal : QIcon::Disabled,
                      has(option, QStyle::State_On) ? QIcon::On : QIcon::Off, widget);
}

} // namespace

QRect indicatorRect(const SubElementRequest &request)
{
    const QStyleOption &option = *request.option;
    const int width =
        request.proxy().pixelMetric(QStyle::PM_IndicatorWidth, &option, request.widget);
    const int height =
        request.proxy().pixelMetric(QStyle::PM_IndicatorHeight, &option, request.widget);
    const QRect room = withinReach(option.rect);
    const int top = room.y() + (room.height() - height) / 2;
    return QStyle::visualRect(option.direction, room, QRect(room.x(), top, width, height));
}

QRect contentsRect(const SubElementRequest &request)
{
    const QStyleOption &option = *request.option;
    const QRect room = withinReach(option.rect);
    const QRect indicator = QStyle::visualRect(
        option.direction, room,
        request.style.subElementRect(QStyle::SE_CheckBoxIndicator, &option, request.widget));
    const int spacing =
        request.proxy().pixelMetric(QStyle::PM_CheckBoxLabelSpacing, &option, request.widget);
    const QRect contents(indicator.right() + spacing, room.top(),
                         room.width() - indicator.width() - spacing, room.height());
    return QStyle::visualRect(option.direction, room, contents);
}

bool drawCheckIndicator(const PaintRequest &request)
{
    if (!qstyleoption_cast<const QStyleOptionButton *>(request.option)) {
        return false;
    }
    if (isSet(request.widget, Property::Switch)) {
        drawSwitch(request);
    } else {
        drawBox(request, checkBoxBorder(request), cornerRadius(CornerSize::Base));
        drawCheckState(request);
    }
    return true;
}

bool drawRadioIndicator(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    drawBox(request, radioButtonBorder(request), roundRadius(option.rect));
    if (has(option, QStyle::State_On)) {
        drawRadioMark(*request.painter, option.rect, markBrush(option));
    }
    return true;
}

bool drawCheckBox(const PaintRequest &request)
{
    return drawParts(request, checkBoxParts);
}

bool drawRadioButton(const PaintRequest &request)
{
    return drawParts(request, radioButtonParts);
}

bool drawLabel(const PaintRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionButton *>(request.option);
    if (!option) {
        return false;
    }
    const QStyle &proxy = request.proxy();
    const Qt::Alignment side =
        QStyle::visualAlignment(option->direction, Qt::AlignLeft | Qt::AlignVCenter);
    const QRect room = withinReach(option->rect);
    QRect textRect = room;
    if (!option->icon.isNull()) {
        proxy.drawItemPixmap(request.painter, room, int(side),
                             labelPixmap(*option, request.widget));
        // The toolkit reserves this much beside the icon when it measures the label.
        constexpr int spacing = 4;
        const QRect logical = room.adjusted(option->iconSize.width() + spacing, 0, 0, 0);
        textRect = QStyle::visualRect(option->direction, room, logical);
    }
    if (!option->text.isEmpty()) {
        proxy.drawItemText(request.painter, textRect, int(side) | mnemonicFlags(request),
                           option->palette, isEnabled(*option), option->text, QPalette::WindowText);
    }
    return true;
}

} // namespace TARN::CheckBoxes
