#include "PaintTime.h"

#include "Median.h"
#include "ProcessorTime.h"

#include <QtGui/QImage>

#include <algorithm>

namespace {

constexpr int warmUpCount = 5;
constexpr std::size_t sampleCount = 21;

/// How long a sample lasts at least, for reading the clock not to count.
constexpr double sampleTime = 100e3;

template <typename Function>
double timeOf(Function function)
{
    const double begin = processorTime();
    function();
    return processorTime() - begin;
}

} // namespace

double paintTime(QWidget &widget, QWidget::RenderFlags flags)
{
    QImage canvas(widget.size(), QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    const auto paint = [&](int count) {
        for (int i = 0; i < count; ++i) {
            widget.render(&canvas, QPoint(), QRegion(), flags);
        }
    };

    paint(warmUpCount);
    const double single = timeOf([&] { paint(1); });
    const int count = std::max(1, static_cast<int>(sampleTime / single));
    std::vector<double> times(sampleCount);
    std::generate(times.begin(), times.end(),
                  [&] { return timeOf([&] { paint(count); }) / count; });
    return median(std::move(times));
}
