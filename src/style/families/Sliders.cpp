#include "style/families/Sliders.h"

#include "resources/ThemeResources.h"
#include "style/BaseStyle.h"
#include "style/Geometry.h"
#include "style/Properties.h"
#include "style/catalogue/Names.h"

#include <QtWidgets/QSlider>
#include <QtWidgets/QStyleOption>

namespace TARN::Sliders {

namespace {

struct RangeSliderBrush
{
    const char *property;
    BrushName brush;
    bool enabled;
};

constexpr RangeSliderBrush rangeSliderBrushes[] = {
    {"SunkenBrush", BrushName::SliderThumbNailPressedBrush, true},
    {"HoverBrush", BrushName::SliderThumbNailHoverBrush, true},
    {"DefaultBrush", BrushName::InputForegroundBrush, true},
    {"DefaultBrushDisabled", BrushName::InputForegroundBrush, false},
    {"BackgroundBrush", BrushName::InputBackgroundBrush, true},
    {"BackgroundBrushDisabled", BrushName::InputBackgroundBrush, false},
    {"BorderBrush", BrushName::InputBorderBrush, true},
    {"BorderBrushDisabled", BrushName::InputBorderBrush, false},
    {"RangeBrush", BrushName::MainBrush, true},
    {"RangeBrushDisabled", BrushName::MainBrush, false},
};

int metric(const BaseStyle &style, QStyle::PixelMetric metric, const SubControlRequest &request)
{
    return style.proxy()->pixelMetric(metric, request.option, request.widget);
}

/// The height of a range slider's handle and groove: a range slider that was made high fills its
/// height.
int rangeExtent(const QWidget &widget, int length)
{
    return qMax(length, widget.minimumHeight());
}

QRect grooveRect(const BaseStyle &style, const SubControlRequest &request,
                 Qt::Orientation orientation)
{
    QRect rect = request.option->rect;
    const bool isRange = isSet(request.widget, "rangeSlider");
    const int length = metric(style, QStyle::PM_SliderLength, request);
    const int thickness = metric(style, QStyle::PM_SliderThickness, request) / 2 - 2;
    if (orientation == Qt::Horizontal) {
        rect.setHeight(isRange ? rangeExtent(*request.widget, length) : thickness);
    } else {
        rect.setWidth(isRange ? length - 2 : thickness);
    }
    rect.moveCenter(request.option->rect.center());
    return rect;
}

QRect handleRect(const BaseStyle &style, const SubControlRequest &request,
                 Qt::Orientation orientation)
{
    QRect rect = baseRect(style, request);
    const int length = metric(style, QStyle::PM_SliderLength, request);
    const bool isRange = isSet(request.widget, "rangeSlider");
    rect.setSize(QSize(length, isRange ? rangeExtent(*request.widget, length) : length));
    const QPoint center = request.option->rect.center();
    if (orientation == Qt::Horizontal) {
        rect.moveTop(center.y() - rect.height() / 2 + 1);
    } else {
        rect.moveLeft(center.x() - rect.width() / 2 + 1);
    }
    return rect;
}

} // namespace

QRect subControlRect(const BaseStyle &style, const SubControlRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionSlider *>(request.option);
    if (!option) {
        return baseRect(style, request);
    }
    QRect rect;
    switch (request.subControl) {
    case QStyle::SC_SliderGroove:
        rect = grooveRect(style, request, option->orientation);
        break;
    case QStyle::SC_SliderHandle:
        rect = handleRect(style, request, option->orientation);
        break;
    default:
        return baseRect(style, request);
    }
    return QStyle::visualRect(option->direction, option->rect, rect);
}

QSize sliderSize(const BaseStyle &style, const ContentsRequest &request)
{
    QSize size = baseSize(style, request);
    const auto *slider = qobject_cast<const QSlider *>(request.widget);
    if (!slider) {
        return size;
    }
    const QStyle *proxy = style.proxy();
    // Room for ticks at either side, whether there are any or not: sliders of a form line up.
    const int thickness =
        proxy->pixelMetric(QStyle::PM_SliderThickness, request.option, slider) +
        2 * proxy->pixelMetric(QStyle::PM_SliderTickmarkOffset, request.option, slider);
    (slider->orientation() == Qt::Horizontal ? size.rheight() : size.rwidth()) = thickness;
    return size;
}

void polishRangeSlider(BaseStyle & /*style*/, QWidget &widget)
{
    widget.setProperty("orientation", Qt::Horizontal);
    widget.setProperty("invertedAppearance", false);
    widget.setProperty("invertedControls", false);
    widget.setProperty("tracking", true);
    widget.setProperty("tickPosition", 0);
    for (const RangeSliderBrush &row : rangeSliderBrushes) {
        widget.setProperty(row.property, themeBrush(row.brush, row.enabled));
    }
    widget.setProperty("CornerRadius", ThemeResources::getCornerRadius(QStringLiteral("BaseSize")));
}

bool drawSlider(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

} // namespace TARN::Sliders
