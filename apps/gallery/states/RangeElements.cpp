#include "components/MinimizedScrollBar.h"
#include "states/Families.h"
#include "states/SampleMaking.h"

#include <QtWidgets/QDial>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>

using TARN::Components::MinimizedScrollBar;

namespace TARN::Gallery {

namespace {

using Slider = QStyleOptionSlider;
using ProgressBar = QStyleOptionProgressBar;

constexpr QSize lyingSize(100, 24);
constexpr QSize standingSize(24, 76);
constexpr QSize dialSize(48, 48);
constexpr QSize barSize(100, 16);
constexpr QSize standingBarSize(16, 76);
/// What the style makes of minimized ones.
constexpr QSize thinBarSize(100, 5);
constexpr QSize standingThinBarSize(5, 76);
constexpr QSize lineButtonSize(16, 16);
constexpr int value = 40;

WidgetMaker slider(Qt::Orientation orientation = Qt::Horizontal,
                   QSlider::TickPosition ticks = QSlider::NoTicks)
{
    return [=] {
        auto *slider = new QSlider(orientation);
        slider->setTickPosition(ticks);
        slider->setTickInterval(20);
        slider->setValue(value);
        return slider;
    };
}

template <typename Widget = QSlider>
OptionMaker sliderOption(QStyle::SubControl part)
{
    return describing<Widget, Slider>([part](Slider &option) {
        option.subControls = QStyle::SC_All;
        option.activeSubControls = part;
    });
}

OptionMaker handled()
{
    return sliderOption(QStyle::SC_SliderHandle);
}

WidgetMaker dial()
{
    return making<QDial>([](QDial &dial) { dial.setValue(value); });
}

OptionMaker bareDialOption()
{
    return describing<QDial, Slider>([](Slider &option) {
        option.subControls = QStyle::SC_DialGroove | QStyle::SC_DialHandle;
        option.activeSubControls = QStyle::SC_DialHandle;
    });
}

template <typename Bar = QScrollBar>
WidgetMaker scrollBar(Qt::Orientation orientation = Qt::Horizontal)
{
    return [orientation] {
        auto *bar = new Bar(orientation);
        bar->setValue(value);
        bar->setPageStep(value);
        return bar;
    };
}

/// Returns the horizontal scroll bar of a scroll area.
QWidget *inScrollArea()
{
    // One that does not set its scroll bars by its contents. The bar becomes as long as the area.
    auto *area = new QAbstractScrollArea;
    const int frame = 2 * area->frameWidth();
    area->resize(barSize + QSize(frame, frame + barSize.width()));
    QScrollBar *bar = area->horizontalScrollBar();
    bar->setRange(0, 100);
    bar->setValue(value);
    bar->setPageStep(value);
    return bar;
}

OptionMaker scrollOption(QStyle::SubControl part)
{
    return sliderOption<QScrollBar>(part);
}

WidgetMaker progressBar(int progress, Qt::Orientation orientation = Qt::Horizontal)
{
    return making<QProgressBar>([=](QProgressBar &bar) {
        bar.setOrientation(orientation);
        bar.setValue(progress);
    });
}

WidgetMaker busyBar()
{
    return with("maximum", progressBar(0), 0);
}

OptionMaker progressOption()
{
    return describing<QProgressBar, ProgressBar>();
}

ElementSample progressSample(const ElementId &element, const char *title, const WidgetMaker &bar,
                             const QSize &size = lyingSize)
{
    return {element, title, passiveStates(), bar, progressOption(), size};
}

} // namespace

ElementFamily sliderFamily()
{
    const WidgetMaker lying = slider();
    const QSize ticked(100, 34);
    return {QLatin1String("slider-states"),
            QLatin1String("Slider states"),
            {
                {QStyle::CC_Slider, "Slider", buttonStates(), lying, handled(), lyingSize},
                {QStyle::CC_Slider, "Inverted", buttonStates(), with("invertedAppearance", lying),
                 handled(), lyingSize},
                {QStyle::CC_Slider, "Highlighted", buttonStates(),
                 with("slider_highlighted", lying), handled(), lyingSize},
                {QStyle::CC_Slider, "High contrast", buttonStates(),
                 with("slider_high_contrast", lying), handled(), lyingSize},
                {QStyle::CC_Slider, "Ticks", buttonStates(),
                 slider(Qt::Horizontal, QSlider::TicksBothSides), handled(), ticked},
                {QStyle::CC_Slider, "Vertical", buttonStates(), slider(Qt::Vertical), handled(),
                 standingSize},
                {QStyle::CC_Slider, "Vertical with ticks", buttonStates(),
                 slider(Qt::Vertical, QSlider::TicksBothSides), handled(), QSize(34, 76)},
                {QStyle::CC_Dial, "Dial", buttonStates(), dial(),
                 sliderOption<QDial>(QStyle::SC_DialHandle), dialSize},
                {QStyle::CC_Dial, "Dial, highlighted", buttonStates(),
                 with("slider_highlighted", dial()), sliderOption<QDial>(QStyle::SC_DialHandle),
                 dialSize},
                {QStyle::CC_Dial, "Dial without notches", buttonStates(), dial(), bareDialOption(),
                 dialSize},
                {QStyle::CC_Dial, "Dial, all the way round", buttonStates(),
                 with("wrapping", dial()), sliderOption<QDial>(QStyle::SC_DialHandle), dialSize},
            }};
}

ElementFamily scrollBarFamily()
{
    const OptionMaker handle = scrollOption(QStyle::SC_ScrollBarSlider);
    const OptionMaker next = scrollOption(QStyle::SC_ScrollBarAddLine);
    const WidgetMaker lying = scrollBar();
    const WidgetMaker standing = scrollBar(Qt::Vertical);
    return {QLatin1String("scroll-bar-states"),
            QLatin1String("Scroll bar states"),
            {
                {QStyle::CC_ScrollBar, "Scroll bar", hoverableStates(), lying, handle, barSize},
                {QStyle::CC_ScrollBar, "Button to the next line", hoverableStates(), lying, next,
                 barSize},
                {QStyle::CC_ScrollBar, "In a scroll area", hoverableStates(), inScrollArea, handle,
                 barSize},
                {QStyle::CC_ScrollBar, "Minimized", hoverableStates(),
                 scrollBar<MinimizedScrollBar>(), handle, thinBarSize},
                {QStyle::CC_ScrollBar, "Vertical", hoverableStates(), standing, handle,
                 standingBarSize},
                {QStyle::CC_ScrollBar, "Vertical, minimized", hoverableStates(),
                 scrollBar<MinimizedScrollBar>(Qt::Vertical), handle, standingThinBarSize},
                {QStyle::CE_ScrollBarSlider, "Handle", hoverableStates(), lying, handle, barSize},
                {QStyle::CE_ScrollBarSlider, "Handle, minimized", hoverableStates(),
                 scrollBar<MinimizedScrollBar>(), handle, thinBarSize},
                {QStyle::CE_ScrollBarAddLine, "Next line", hoverableStates(), standing, next,
                 lineButtonSize},
                {QStyle::CE_ScrollBarSubLine, "Previous line", hoverableStates(), standing,
                 scrollOption(QStyle::SC_ScrollBarSubLine), lineButtonSize},
                {QStyle::CE_ScrollBarAddPage, "Next page", hoverableStates(), lying,
                 scrollOption(QStyle::SC_ScrollBarAddPage), barSize},
                {QStyle::CE_ScrollBarSubPage, "Previous page", hoverableStates(), lying,
                 scrollOption(QStyle::SC_ScrollBarSubPage), barSize},
                {QStyle::CE_ScrollBarFirst, "To the first", hoverableStates(), lying,
                 scrollOption(QStyle::SC_ScrollBarFirst), lineButtonSize},
                {QStyle::CE_ScrollBarLast, "To the last", hoverableStates(), lying,
                 scrollOption(QStyle::SC_ScrollBarLast), lineButtonSize},
                {QStyle::PE_PanelScrollAreaCorner, "Corner", passiveStates(), making<QScrollArea>(),
                 plain(), lineButtonSize},
            }};
}

ElementFamily progressBarFamily()
{
    const QSize standing(28, 76);
    return {QLatin1String("progress-bar-states"),
            QLatin1String("Progress bar states"),
            {
                progressSample(QStyle::CE_ProgressBar, "Progress bar", progressBar(value)),
                progressSample(QStyle::CE_ProgressBar, "Begun", progressBar(2)),
                progressSample(QStyle::CE_ProgressBar, "Complete", progressBar(100)),
                progressSample(QStyle::CE_ProgressBar, "Inverted",
                               with("invertedAppearance", progressBar(value))),
                progressSample(QStyle::CE_ProgressBar, "Without text",
                               with("textVisible", progressBar(value), false)),
                progressSample(QStyle::CE_ProgressBar, "Busy", busyBar()),
                progressSample(QStyle::CE_ProgressBar, "Vertical", progressBar(value, Qt::Vertical),
                               standing),
                progressSample(QStyle::CE_ProgressBarGroove, "Groove", progressBar(value)),
                progressSample(QStyle::CE_ProgressBarContents, "Contents", progressBar(value)),
                progressSample(QStyle::CE_ProgressBarLabel, "Label", progressBar(value)),
                progressSample(QStyle::CE_ProgressBarLabel, "Vertical label",
                               progressBar(value, Qt::Vertical), standing),
                progressSample(QStyle::PE_IndicatorProgressChunk, "Chunk", progressBar(value)),
            }};
}

} // namespace TARN::Gallery
