#include "style/families/Sliders.h"

#include "catalogue/Names.h"
#include "resources/ThemeResources.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/brushes/KeptBrushes.h"
#include "style/drawing/Focus.h"
#include "style/drawing/Lines.h"
#include "style/drawing/Shapes.h"
#include "style/families/SliderParts.h"
#include "style/polishing/Polishing.h"

#include <QtGui/QPainter>
#include <QtWidgets/QSlider>
#include <QtWidgets/QStyleOption>

#include <climits>

namespace TARN::Sliders {

namespace {

struct RangeSliderBrush
{
    Property property;
    BrushName brush;
    bool enabled;
};

constexpr RangeSliderBrush rangeSliderBrushes[] = {
    {Property::SunkenBrush, BrushName::SliderThumbNailPressedBrush, true},
    {Property::HoverBrush, BrushName::SliderThumbNailHoverBrush, true},
    {Property::DefaultBrush, BrushName::InputForegroundBrush, true},
    {Property::DefaultBrushDisabled, BrushName::InputForegroundBrush, false},
    {Property::BackgroundBrush, BrushName::InputBackgroundBrush, true},
    {Property::BackgroundBrushDisabled, BrushName::InputBackgroundBrush, false},
    {Property::BorderBrush, BrushName::InputBorderBrush, true},
    {Property::BorderBrushDisabled, BrushName::InputBorderBrush, false},
    {Property::RangeBrush, BrushName::MainBrush, true},
    {Property::RangeBrushDisabled, BrushName::MainBrush, false},
};

/// The height of a range slider's handle and groove: a range slider that was made high fills its
/// height.
int rangeExtent(const QWidget &widget, int length)
{
    return qMax(length, widget.minimumHeight());
}

QRect grooveRect(const SubControlRequest &request, Qt::Orientation orientation)
{
    QRect rect = request.option->rect;
    const bool isRange = isSet(request.widget, Property::RangeSlider);
    const int length = request.metric(QStyle::PM_SliderLength);
    const int thickness = request.metric(QStyle::PM_SliderThickness) / 2 - 2;
    if (orientation == Qt::Horizontal) {
        rect.setHeight(isRange ? rangeExtent(*request.widget, length) : thickness);
    } else {
        rect.setWidth(isRange ? length - 2 : thickness);
    }
    rect.moveCenter(request.option->rect.center());
    return rect;
}

QRect handleRect(const SubControlRequest &request, Qt::Orientation orientation)
{
    QRect rect = request.baseRect();
    const int length = request.metric(QStyle::PM_SliderLength);
    const bool isRange = isSet(request.widget, Property::RangeSlider);
    rect.setSize(QSize(length, isRange ? rangeExtent(*request.widget, length) : length));
    const QPoint center = request.option->rect.center();
    if (orientation == Qt::Horizontal) {
        rect.moveTop(center.y() - rect.height() / 2 + 1);
    } else {
        rect.moveLeft(center.x() - rect.width() / 2 + 1);
    }
    return rect;
}

/// What all parts of one slider are drawn from.
struct Look
{
    const PaintRequest &request;
    const QStyleOptionSlider &option;
    QRect groove;
    QRect handle;
    bool isHorizontal;
    bool isReversed; ///< whether the slider starts at the right or at the bottom
    bool isHighContrast;
};

Look lookOf(const PaintRequest &request, const QStyleOptionSlider &option)
{
    const auto rectOf = [&](QStyle::SubControl subControl) {
        return request.proxy().subControlRect(QStyle::CC_Slider, &option, subControl,
                                              request.widget);
    };
    // The toolkit mirrors sliders by turning them upside down; their direction mirrors no handle.
    return {request,
            option,
            rectOf(QStyle::SC_SliderGroove),
            rectOf(QStyle::SC_SliderHandle),
            option.orientation == Qt::Horizontal,
            option.upsideDown,
            isSet(request.widget, Property::SliderHighContrast)};
}

/// Draws the groove or a part of it, with an outline in high contrast.
void drawBar(const Look &look, const QRect &rect, const QBrush &brush,
             Helpers::StraightCornerFlags straightCorners)
{
    QPainter &painter = *look.request.painter;
    const int radius = cornerRadius(CornerSize::Base);
    if (look.isHighContrast) {
        const QBrush &border =
            themeBrush(BrushName::HighContrastBorderBrush, isEnabled(look.option));
        drawShape(painter, onHalfPixel(rect), radius, outlinePen(border), brush, straightCorners);
    } else {
        drawShape(painter, QRectF(rect), radius, Qt::NoPen, brush, straightCorners);
    }
}

/// Returns the part of the groove from its start to the middle of the handle.
QRect filledRect(const Look &look)
{
    QRect rect = look.groove;
    const int x = look.handle.left() + look.handle.width() / 2;
    const int y = look.handle.top() + look.handle.height() / 2;
    if (look.isHorizontal) {
        look.isReversed ? rect.setLeft(x) : rect.setRight(x - 1);
    } else {
        look.isReversed ? rect.setTop(y) : rect.setBottom(y - 1);
    }
    return rect & look.groove;
}

/// Returns the corners of the filled part that lie under the handle.
Helpers::StraightCornerFlags cornersAtHandle(const Look &look)
{
    if (look.isHorizontal) {
        return look.isReversed ? Helpers::StraightTopLeft | Helpers::StraightBottomLeft
                               : Helpers::StraightTopRight | Helpers::StraightBottomRight;
    }
    return look.isReversed ? Helpers::StraightTopLeft | Helpers::StraightTopRight
                           : Helpers::StraightBottomLeft | Helpers::StraightBottomRight;
}

void drawGroove(const Look &look)
{
    const bool enabled = isEnabled(look.option);
    drawBar(look, look.groove,
            look.isHighContrast ? themeBrush(BrushName::HighContrastBackgroundBrush, enabled)
                                : grooveBrush(enabled),
            Helpers::NoStraightCorner);
    // What a range slider fills lies between two handles, of which the option knows one: such a
    // slider draws it itself.
    if (!isSet(look.request.widget, Property::RangeSlider)) {
        const bool isHighlighted = isSet(look.request.widget, Property::SliderHighlighted);
        drawBar(look, filledRect(look),
                themeBrush(isHighlighted ? BrushName::MainBrush : BrushName::MainSubLevel1Brush,
                           enabled),
                cornersAtHandle(look));
    }
}

/// Returns how far the values of neighbouring ticks are apart: what the slider asks for, or the
/// multiple of it that leaves room between the ticks.
qint64 tickInterval(const QStyleOptionSlider &option, qint64 range, int available)
{
    qint64 interval = option.tickInterval;
    if (interval <= 0) {
        const bool areStepsApart =
            option.singleStep > 0 && range / option.singleStep <= mostTicks(available);
        interval = areStepsApart ? option.singleStep : option.pageStep;
    }
    return sparseInterval(interval, range, available);
}

/// Returns the strip along the slider in which ticks stand, before or after the groove.
QRect tickStrip(const Look &look, bool isAfter)
{
    const QStyle &proxy = look.request.proxy();
    const QWidget *widget = look.request.widget;
    const int thickness = proxy.pixelMetric(QStyle::PM_SliderThickness, &look.option, widget);
    const int length =
        proxy.pixelMetric(QStyle::PM_SliderTickmarkOffset, &look.option, widget) - tickGap;
    const int gap = thickness / 2 + tickGap;
    const int across = isAfter ? gap : 1 - gap - length;
    const QPoint center = look.groove.center();
    QRect strip = look.option.rect;
    if (look.isHorizontal) {
        strip.setTop(center.y() + across);
        strip.setHeight(length);
    } else {
        strip.setLeft(center.x() + across);
        strip.setWidth(length);
    }
    return strip & look.option.rect;
}

void drawTick(const Look &look, const QRect &strip, int position, const QBrush &brush)
{
    const QRect tick = look.isHorizontal
                           ? QRect(strip.left() + position, strip.top(), 1, strip.height())
                           : QRect(strip.left(), strip.top() + position, strip.width(), 1);
    fillEdge(*look.request.painter, tick & strip, look.isHorizontal ? Qt::LeftEdge : Qt::TopEdge,
             brush);
}

/// Draws the ticks of one side.
void drawTicks(const Look &look, const QRect &strip)
{
    const QStyleOptionSlider &option = look.option;
    const QStyle &proxy = look.request.proxy();
    const QWidget *widget = look.request.widget;
    const int available = proxy.pixelMetric(QStyle::PM_SliderSpaceAvailable, &option, widget);
    const int length = proxy.pixelMetric(QStyle::PM_SliderLength, &option, widget);
    // The middle of a handle lies between two pixels: the tick is on the one towards the end.
    const int middle = look.isReversed ? (length - 1) / 2 : length / 2;
    const qint64 range = qint64(option.maximum) - option.minimum;
    const qint64 interval = tickInterval(option, range, available);
    const QBrush &brush = themeBrush(BrushName::InputForegroundBrush, isEnabled(option));
    // The toolkit computes with ranges that fit an int only.
    const int shift = range > INT_MAX ? 1 : 0;
    for (qint64 step = 0; step <= range; step += interval) {
        const int position = QStyle::sliderPositionFromValue(
            0, int(range >> shift), int(step >> shift), available, look.isReversed);
        drawTick(look, strip, position + middle, brush);
    }
}

/// Above and left of the groove are the same to the toolkit, as are below and right.
void drawTicks(const Look &look)
{
    if (look.option.tickPosition & QSlider::TicksAbove) {
        drawTicks(look, tickStrip(look, false));
    }
    if (look.option.tickPosition & QSlider::TicksBelow) {
        drawTicks(look, tickStrip(look, true));
    }
}

const QBrush &currentHandleBrush(const QStyleOptionSlider &option)
{
    const bool isUsed = option.activeSubControls.testFlag(QStyle::SC_SliderHandle);
    return handleBrush(isEnabled(option), isUsed && has(option, QStyle::State_Sunken),
                       isUsed && has(option, QStyle::State_MouseOver));
}

void drawHandle(const Look &look)
{
    QPainter &painter = *look.request.painter;
    const QRectF rect = look.isHighContrast ? onHalfPixel(look.handle) : QRectF(look.handle);
    const QPen pen =
        look.isHighContrast
            ? outlinePen(themeBrush(BrushName::HighContrastBorderBrush, isEnabled(look.option)))
            : QPen(Qt::NoPen);
    if (rect.width() == rect.height()) {
        // A circle is a square with the roundest corners, which are drawn faster.
        drawShape(painter, rect, look.handle.width(), pen, currentHandleBrush(look.option));
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen);
    painter.setBrush(currentHandleBrush(look.option));
    painter.drawEllipse(rect);
}

} // namespace

QRect subControlRect(const SubControlRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionSlider *>(request.option);
    if (!option) {
        return request.baseRect();
    }
    QRect rect;
    switch (request.subControl) {
    case QStyle::SC_SliderGroove:
        rect = grooveRect(request, option->orientation);
        break;
    case QStyle::SC_SliderHandle:
        rect = handleRect(request, option->orientation);
        break;
    default:
        return request.baseRect();
    }
    return QStyle::visualRect(option->direction, option->rect, rect);
}

QSize sliderSize(const ContentsRequest &request)
{
    QSize size = request.baseSize();
    const auto *slider = qobject_cast<const QSlider *>(request.widget);
    if (!slider) {
        return size;
    }
    const QStyle *proxy = &request.proxy();
    // Room for ticks at either side, whether there are any or not: sliders of a form line up.
    const int thickness =
        proxy->pixelMetric(QStyle::PM_SliderThickness, request.option, slider) +
        2 * proxy->pixelMetric(QStyle::PM_SliderTickmarkOffset, request.option, slider);
    (slider->orientation() == Qt::Horizontal ? size.rheight() : size.rwidth()) = thickness;
    return size;
}

void polishRangeSlider(Polishing &polishing)
{
    polishing.setProperty(Property::Orientation, Qt::Horizontal);
    polishing.setProperty(Property::InvertedAppearance, false);
    polishing.setProperty(Property::InvertedControls, false);
    polishing.setProperty(Property::Tracking, true);
    polishing.setProperty(Property::TickPosition, 0);
    for (const RangeSliderBrush &row : rangeSliderBrushes) {
        polishing.setProperty(row.property, themeBrush(row.brush, row.enabled));
    }
    polishing.setProperty(Property::CornerRadius,
                          ThemeResources::getCornerRadius(QStringLiteral("BaseSize")));
}

bool drawSlider(const PaintRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionSlider *>(request.option);
    if (!option) {
        return false;
    }
    const Look look = lookOf(request, *option);
    if (option->subControls.testFlag(QStyle::SC_SliderGroove)) {
        drawGroove(look);
    }
    if (option->subControls.testFlag(QStyle::SC_SliderTickmarks)) {
        drawTicks(look);
    }
    if (option->subControls.testFlag(QStyle::SC_SliderHandle)) {
        drawHandle(look);
    }
    if (has(*option, QStyle::State_HasFocus)) {
        drawFocusRect(request, option->rect);
    }
    return true;
}

} // namespace TARN::Sliders
