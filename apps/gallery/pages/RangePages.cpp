#include "pages/Arrangement.h"
#include "pages/Pages.h"
#include "pages/SamplePage.h"
#include "samples/Literals.h"

#include <QtWidgets/QDial>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>

namespace TARN::Gallery {

namespace {

constexpr int VerticalExtent = 170;

QSlider *slider(Qt::Orientation orientation, int value, QSlider::TickPosition ticks)
{
    auto *widget = new QSlider(orientation);
    widget->setRange(0, 100);
    widget->setTickInterval(10);
    widget->setTickPosition(ticks);
    widget->setValue(value);
    if (orientation == Qt::Vertical) {
        widget->setMinimumHeight(VerticalExtent);
    }
    return widget;
}

QScrollBar *scrollBar(Qt::Orientation orientation, int value, int pageStep)
{
    auto *bar = new QScrollBar(orientation);
    bar->setRange(0, 100);
    bar->setPageStep(pageStep);
    bar->setValue(value);
    if (orientation == Qt::Vertical) {
        bar->setMinimumHeight(VerticalExtent);
    }
    return bar;
}

QDial *dial(int value, bool notches, bool wrapping)
{
    auto *widget = new QDial;
    widget->setRange(0, 360);
    widget->setNotchTarget(12);
    widget->setNotchesVisible(notches);
    widget->setWrapping(wrapping);
    widget->setValue(value);
    widget->setFixedSize(96, 96);
    return widget;
}

QProgressBar *progressBar(int value, Qt::Orientation orientation = Qt::Horizontal)
{
    auto *bar = new QProgressBar;
    bar->setOrientation(orientation);
    bar->setValue(value);
    if (orientation == Qt::Vertical) {
        bar->setMinimumHeight(VerticalExtent);
    }
    return bar;
}

QProgressBar *inverted(QProgressBar *bar)
{
    bar->setInvertedAppearance(true);
    return bar;
}

QProgressBar *busyBar(Qt::Orientation orientation)
{
    QProgressBar *bar = progressBar(0, orientation);
    bar->setRange(0, 0);
    return bar;
}

QProgressBar *formattedBar()
{
    QProgressBar *bar = progressBar(0);
    bar->setRange(0, 24);
    bar->setValue(17);
    bar->setFormat("Image %v of %m"_s);
    return bar;
}

QProgressBar *textlessBar()
{
    QProgressBar *bar = progressBar(60);
    bar->setTextVisible(false);
    return bar;
}

QWidget *horizontalSliders()
{
    QSlider *mirrored = slider(Qt::Horizontal, 30, QSlider::NoTicks);
    mirrored->setInvertedAppearance(true);
    return form({{"&Brightness:"_s, slider(Qt::Horizontal, 65, QSlider::NoTicks)},
                 {"&Contrast:"_s, slider(Qt::Horizontal, 40, QSlider::TicksBelow)},
                 {"&Saturation:"_s, slider(Qt::Horizontal, 100, QSlider::TicksAbove)},
                 {"S&harpness:"_s, slider(Qt::Horizontal, 0, QSlider::TicksBothSides)},
                 {"&Inverted:"_s, mirrored}});
}

QWidget *verticalSliders()
{
    return row({slider(Qt::Vertical, 65, QSlider::NoTicks),
                slider(Qt::Vertical, 40, QSlider::TicksLeft),
                slider(Qt::Vertical, 100, QSlider::TicksRight),
                slider(Qt::Vertical, 0, QSlider::TicksBothSides)});
}

QWidget *dials()
{
    return row({dial(60, false, false), dial(200, true, false), dial(300, true, true)});
}

QWidget *horizontalScrollBars()
{
    return column({scrollBar(Qt::Horizontal, 30, 40), scrollBar(Qt::Horizontal, 100, 5)});
}

QWidget *verticalScrollBars()
{
    return row({scrollBar(Qt::Vertical, 30, 40), scrollBar(Qt::Vertical, 0, 100),
                scrollBar(Qt::Vertical, 100, 5)});
}

QWidget *progressValues()
{
    return column({progressBar(0), progressBar(35), progressBar(100), formattedBar(), textlessBar(),
                   inverted(progressBar(35))});
}

QWidget *verticalProgress()
{
    return row({progressBar(0, Qt::Vertical), progressBar(35, Qt::Vertical),
                progressBar(100, Qt::Vertical), inverted(progressBar(35, Qt::Vertical)),
                busyBar(Qt::Vertical)});
}

} // namespace

QWidget *createSlidersPage()
{
    auto *page = new SamplePage;
    page->addSample("Horizontal"_s, horizontalSliders);
    page->addSample("Vertical"_s, verticalSliders);
    page->finish();
    return page;
}

QWidget *createDialsAndScrollBarsPage()
{
    auto *page = new SamplePage;
    page->addSample("Dials: plain, with notches, all the way round"_s, dials);
    page->addSample("Horizontal scroll bars"_s, horizontalScrollBars);
    page->addSample("Vertical scroll bars"_s, verticalScrollBars);
    page->finish();
    return page;
}

QWidget *createProgressBarsPage()
{
    auto *page = new SamplePage;
    page->addSample("Values, texts, inverted"_s, progressValues);
    page->addSample("Busy"_s, [] { return busyBar(Qt::Horizontal); });
    page->addSample("Vertical"_s, verticalProgress);
    page->finish();
    return page;
}

} // namespace TARN::Gallery
