#include "CaseTables.h"

#include <QtWidgets/QDial>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>

namespace {

constexpr int rangeLength = 160;

/// The handle lies in the middle, where the mouse goes.
template <typename Range, Qt::Orientation orientation>
Range *newRange()
{
    auto *range = new Range(orientation);
    range->setRange(0, 100);
    range->setValue(50);
    const QSize size = range->sizeHint();
    range->resize(orientation == Qt::Horizontal ? QSize(rangeLength, size.height())
                                                : QSize(size.width(), rangeLength));
    return range;
}

template <typename Range, Qt::Orientation orientation>
QWidget *range()
{
    return newRange<Range, orientation>();
}

QWidget *sliderWithTicks()
{
    auto *slider = newRange<QSlider, Qt::Horizontal>();
    slider->setTickPosition(QSlider::TicksBelow);
    slider->setTickInterval(10);
    slider->resize(rangeLength, slider->sizeHint().height());
    return slider;
}

QWidget *dial()
{
    auto *dial = new QDial;
    dial->setValue(50);
    dial->setNotchesVisible(true);
    return dial;
}

QProgressBar *newProgressBar()
{
    auto *bar = new QProgressBar;
    bar->setValue(60);
    bar->resize(rangeLength, bar->sizeHint().height());
    return bar;
}

QWidget *progressBar()
{
    return newProgressBar();
}

QWidget *busyProgressBar()
{
    QProgressBar *bar = newProgressBar();
    bar->setRange(0, 0);
    return bar;
}

QWidget *verticalProgressBar()
{
    QProgressBar *bar = newProgressBar();
    bar->setOrientation(Qt::Vertical);
    bar->resize(bar->sizeHint().width(), rangeLength);
    return bar;
}

} // namespace

CaseTable rangeCases()
{
    using namespace States;
    return {
        {"QSlider horizontal",
         range<QSlider, Qt::Horizontal>,
         {rest, hover, pressed, focus, disabled}},
        {"QSlider vertical", range<QSlider, Qt::Vertical>, {rest, hover, disabled}},
        {"QSlider with ticks", sliderWithTicks, {rest, disabled}},
        {"QScrollBar horizontal",
         range<QScrollBar, Qt::Horizontal>,
         {rest, hover, pressed, disabled}},
        {"QScrollBar vertical", range<QScrollBar, Qt::Vertical>, {rest, hover, pressed, disabled}},
        {"QDial", dial, {rest, focus, disabled}},
        {"QProgressBar", progressBar, {rest, disabled}},
        {"QProgressBar busy", busyProgressBar, {rest}},
        {"QProgressBar vertical", verticalProgressBar, {rest}},
    };
}
