#include "style/families/CheckBoxes.h"

#include "catalogue/Names.h"
#include "style/BaseStyle.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/drawing/Drawing.h"
#include "style/families/Inputs.h"

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

QBrush borderBrush(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    const bool enabled = isEnabled(option);
    if (Inputs::isInError(request.widget)) {
        return Inputs::errorBrush(enabled);
    }
    const bool isStressed = isHovered(option) || hasKeyboardFocus(option);
    return isStressed && !has(option, QStyle::State_Sunken)
               ? themeBrush(BrushName::MainBrush, enabled)
               : themeBrush(BrushName::ControlBorderBrush, enabled);
}

const QBrush &markBrush(const QStyleOption &option)
{
    return isHovered(option) ? themeBrush(BrushName::ForegroundMouseOverBrush, true)
                             : themeBrush(BrushName::ForegroundBrush, isEnabled(option));
}

/// Draws the box or the circle, which keeps its ground when it is checked: the mark stands out
/// from no other.
void drawBox(const PaintRequest &request, int radius)
{
    const QStyleOption &option = *request.option;
    QPen pen = outlinePen(borderBrush(request));
    // A pressed one has the outline of one at rest, twice as thick. Two outlines beside each other
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

int indicatorMetric(const BaseStyle &style, const PaintRequest &request, QStyle::PixelMetric metric)
{
    return style.proxy()->pixelMetric(metric, request.option, request.widget);
}

/// Returns the dash that marks what is partially checked: a quarter of the indicator's width thick,
/// and clear of the box by two pixels at both ends.
QRect partialMarkRect(const BaseStyle &style, const PaintRequest &request)
{
    const QRect &box = request.option->rect;
    const int width = indicatorMetric(style, request, QStyle::PM_IndicatorWidth);
    const int height = indicatorMetric(style, request, QStyle::PM_IndicatorHeight);
    const int thickness = qRound(width * 0.25);
    // On whole pixels in the middle when it is even or odd as the box is.
    const QSize size(height - 6, thickness + (box.height() - thickness) % 2);
    return QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, box);
}

void drawCheckState(const BaseStyle &style, const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    if (has(option, QStyle::State_NoChange)) {
        drawShape(*request.painter, partialMarkRect(style, request), cornerRadius(CornerSize::Base),
                  Qt::NoPen, markBrush(option));
    } else if (has(option, QStyle::State_On)) {
        style.drawCheckMark(request.painter, option.rect, markBrush(option));
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

QRectF knobRect(const BaseStyle &style, const PaintRequest &request, const QRectF &track)
{
    const QStyleOption &option = *request.option;
    const int width = indicatorMetric(style, request, QStyle::PM_IndicatorWidth);
    const int height = indicatorMetric(style, request, QStyle::PM_IndicatorHeight);
    // Two pixels of the track are seen around the knob, and one around a pressed one.
    const int diameter = height - (has(option, QStyle::State_Sunken) ? 4 : 6);
    const qreal offset = knobOffset(option, track.width(), width * 0.25);
    const qreal x = isRightToLeft(option) ? track.right() - offset : track.left() + offset;
    return {x - diameter / 2.0, track.center().y() - diameter / 2.0, qreal(diameter),
            qreal(diameter)};
}

void drawSwitch(const BaseStyle &style, const PaintRequest &request)
{
    constexpr int trackRadius = 8;
    const QStyleOption &option = *request.option;
    const bool enabled = isEnabled(option);
    const bool isOn = has(option, QStyle::State_On);
    const QRectF track = onHalfPixel(option.rect);
    // Filled in the main colour, so that what is on is seen without comparing the ends.
    drawShape(*request.painter, track, trackRadius, outlinePen(borderBrush(request)),
              isOn ? themeBrush(BrushName::MainBrush, enabled)
                   : themeBrush(BrushName::ControlBackgroundBrush, enabled));
    const QRectF knob = squareOnPixels(*request.painter, knobRect(style, request, track));
    drawShape(*request.painter, knob, roundRadius(knob), Qt::NoPen,
              isOn ? themeBrush(BrushName::SwitchForegroundCheckedEllipseBrush, enabled)
                   : themeBrush(BrushName::SwitchEllipseBrush, enabled));
}

bool drawParts(const BaseStyle &style, const PaintRequest &request, const Parts &parts)
{
    const auto *option = qstyleoption_cast<const QStyleOptionButton *>(request.option);
    if (!option) {
        return false;
    }
    const QStyle &proxy = *style.proxy();
    QStyleOptionButton part(*option);
    part.rect = proxy.subElementRect(parts.indicatorRect, option, request.widget);
    proxy.drawPrimitive(parts.indicator, &part, request.painter, request.widget);
    part.rect = proxy.subElementRect(parts.contentsRect, option, request.widget);
    proxy.drawControl(parts.label, &part, request.painter, request.widget);
    if (has(*option, QStyle::State_HasFocus)) {
        drawFocusRect(style, request,
                      proxy.subElementRect(parts.focusRect, option, request.widget));
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

QRect indicatorRect(const BaseStyle &style, const SubElementRequest &request)
{
    const QStyleOption &option = *request.option;
    const int width =
        style.proxy()->pixelMetric(QStyle::PM_IndicatorWidth, &option, request.widget);
    const int height =
        style.proxy()->pixelMetric(QStyle::PM_IndicatorHeight, &option, request.widget);
    const int top = option.rect.y() + (option.rect.height() - height) / 2;
    return QStyle::visualRect(option.direction, option.rect,
                              QRect(option.rect.x(), top, width, height));
}

QRect contentsRect(const BaseStyle &style, const SubElementRequest &request)
{
    const QStyleOption &option = *request.option;
    const QRect indicator = QStyle::visualRect(
        option.direction, option.rect,
        style.subElementRect(QStyle::SE_CheckBoxIndicator, &option, request.widget));
    const int spacing =
        style.proxy()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, &option, request.widget);
    const QRect contents(indicator.right() + spacing, option.rect.top(),
                         option.rect.width() - indicator.width() - spacing, option.rect.height());
    return QStyle::visualRect(option.direction, option.rect, contents);
}

bool drawCheckIndicator(const BaseStyle &style, const PaintRequest &request)
{
    if (!qstyleoption_cast<const QStyleOptionButton *>(request.option)) {
        return false;
    }
    if (isSet(request.widget, "switch")) {
        drawSwitch(style, request);
    } else {
        drawBox(request, cornerRadius(CornerSize::Base));
        drawCheckState(style, request);
    }
    return true;
}

bool drawRadioIndicator(const BaseStyle &style, const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    drawBox(request, roundRadius(option.rect));
    if (has(option, QStyle::State_On)) {
        style.drawRadioMark(request.painter, option.rect, markBrush(option));
    }
    return true;
}

bool drawCheckBox(const BaseStyle &style, const PaintRequest &request)
{
    return drawParts(style, request, checkBoxParts);
}

bool drawRadioButton(const BaseStyle &style, const PaintRequest &request)
{
    return drawParts(style, request, radioButtonParts);
}

bool drawLabel(const BaseStyle &style, const PaintRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionButton *>(request.option);
    if (!option) {
        return false;
    }
    const QStyle &proxy = *style.proxy();
    const Qt::Alignment side =
        QStyle::visualAlignment(option->direction, Qt::AlignLeft | Qt::AlignVCenter);
    QRect textRect = option->rect;
    if (!option->icon.isNull()) {
        proxy.drawItemPixmap(request.painter, option->rect, int(side),
                             labelPixmap(*option, request.widget));
        // The toolkit reserves this much beside the icon when it measures the label.
        constexpr int spacing = 4;
        const QRect logical = option->rect.adjusted(option->iconSize.width() + spacing, 0, 0, 0);
        textRect = QStyle::visualRect(option->direction, option->rect, logical);
    }
    if (!option->text.isEmpty()) {
        proxy.drawItemText(request.painter, textRect, int(side) | mnemonicFlags(style, request),
                           option->palette, isEnabled(*option), option->text, QPalette::WindowText);
    }
    return true;
}

} // namespace TARN::CheckBoxes

namespace TARN {

void BaseStyle::drawCheckMark(QPainter *painter, const QRect &rect, QBrush brush) const
{
    const qreal width = rect.width();
    const qreal height = rect.height();
    const QPointF corners[] = {{4.0, height * 0.5}, {width * 0.5, height - 3}, {width - 3.5, 4.0}};
    QPainterPath tick(corners[0]);
    tick.lineTo(corners[1]);
    tick.lineTo(corners[2]);
    tick.translate(rect.topLeft());

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(brush, 1.8, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter->setBrush(Qt::NoBrush);
    painter->drawPath(tick);
    painter->restore();
}

void BaseStyle::drawRadioMark(QPainter *painter, const QRect &rect, QBrush brush) const
{
    const int extent = qMin(rect.width(), rect.height());
    const qreal radius = extent / 3.5;
    // An odd extent counts half a pixel more, so that the dot is centred on whole coordinates.
    const qreal shift = extent % 2 != 0 ? 0.5 : 0;
    const QPointF center = QRectF(rect).center() + QPointF(shift, shift);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(brush);
    painter->drawEllipse(center, radius, radius);
    painter->restore();
}

} // namespace TARN
