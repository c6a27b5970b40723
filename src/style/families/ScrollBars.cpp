#include "style/families/ScrollBars.h"

#include "style/BaseStyle.h"
#include "style/Geometry.h"
#include "style/Properties.h"

#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QStyleOption>

namespace TARN::ScrollBars {

namespace {

constexpr int minimizedThickness = 5;

const QStyleOptionSlider *minimizedOption(const QStyleOption *option, const QWidget *widget)
{
    return isSet(widget, "minimized") ? qstyleoption_cast<const QStyleOptionSlider *>(option)
                                      : nullptr;
}

int scrollAreaFrameWidth(const QWidget *widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (const auto *area = qobject_cast<const QAbstractScrollArea *>(widget)) {
            return area->frameWidth();
        }
    }
    return 0;
}

/// The base style leaves room for buttons at both ends, which the slider takes.
QRect minimizedSliderRect(const BaseStyle &style, const SubControlRequest &request,
                          Qt::Orientation orientation)
{
    const bool isTransient = style.proxy()->styleHint(QStyle::SH_ScrollBar_Transient,
                                                      request.option, request.widget) != 0;
    const int extent = isTransient ? 0
                                   : style.proxy()->pixelMetric(QStyle::PM_ScrollBarExtent,
                                                                request.option, request.widget);
    const int frameWidth = scrollAreaFrameWidth(request.widget->parentWidget());
    const int growth = extent + frameWidth - 1;
    const QRect rect = baseRect(style, request);
    return orientation == Qt::Horizontal ? rect.adjusted(-growth, 0, growth, frameWidth)
                                         : rect.adjusted(frameWidth, -growth, 0, growth);
}

} // namespace

QRect subControlRect(const BaseStyle &style, const SubControlRequest &request)
{
    const QStyleOptionSlider *option = minimizedOption(request.option, request.widget);
    if (!option) {
        return baseRect(style, request);
    }
    switch (request.subControl) {
    case QStyle::SC_ScrollBarAddLine:
    case QStyle::SC_ScrollBarSubLine:
    case QStyle::SC_ScrollBarAddPage:
    case QStyle::SC_ScrollBarSubPage:
        return {};
    case QStyle::SC_ScrollBarGroove:
        return option->rect;
    case QStyle::SC_ScrollBarSlider:
        return minimizedSliderRect(style, request, option->orientation);
    default:
        return baseRect(style, request);
    }
}

QSize scrollBarSize(const BaseStyle &style, const ContentsRequest &request)
{
    QSize size = baseSize(style, request);
    if (const QStyleOptionSlider *option = minimizedOption(request.option, request.widget)) {
        (option->orientation == Qt::Horizontal ? size.rheight() : size.rwidth()) =
            minimizedThickness;
    }
    return size;
}

bool drawCorner(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawAddLine(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawSubLine(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawHandle(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawScrollBar(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

} // namespace TARN::ScrollBars
