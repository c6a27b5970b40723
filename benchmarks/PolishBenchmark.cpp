#include "BenchmarkMain.h"

#include <style/BaseStyle.h>
#include <theme/BaseTheme.h>

#include <QtCore/QElapsedTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeWidget>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <memory>
#include <vector>

namespace {

constexpr int WidgetCount = 300;
constexpr int ColumnCount = 15;

template <typename Widget>
QWidget *withText()
{
    return new Widget(QStringLiteral("&Measure"));
}

template <typename Widget>
QWidget *withoutText()
{
    return new Widget;
}

QWidget *comboBox()
{
    auto *box = new QComboBox;
    box->addItems({QStringLiteral("10"), QStringLiteral("20")});
    return box;
}

QWidget *tabWidget()
{
    auto *tabs = new QTabWidget;
    tabs->addTab(new QWidget, QStringLiteral("Image"));
    tabs->addTab(new QWidget, QStringLiteral("Results"));
    return tabs;
}

using WidgetMaker = QWidget *(*)();

/// What a form of an application consists of.
constexpr WidgetMaker makers[] = {
    withText<QLabel>,
    withoutText<QLineEdit>,
    withText<QPushButton>,
    withText<QCheckBox>,
    comboBox,
    withoutText<QSpinBox>,
    withText<QLabel>,
    withoutText<QSlider>,
    withText<QGroupBox>,
    withoutText<QToolButton>,
    withText<QRadioButton>,
    withoutText<QProgressBar>,
    withoutText<QListWidget>,
    withoutText<QTreeWidget>,
    tabWidget,
};

/// What a window took, in nanoseconds.
struct WindowTime
{
    double polishing;
    double layout; ///< asking all widgets for their sizes
    double whole;  ///< with making the widgets
};

/// Creates a window of many widgets, polishes all of them and lays them out.
WindowTime openWindow()
{
    QElapsedTimer timer;
    timer.start();
    QWidget window;
    auto *grid = new QGridLayout(&window);
    for (int i = 0; i < WidgetCount; ++i) {
        grid->addWidget(makers[i % std::size(makers)](), i / ColumnCount, i % ColumnCount);
    }
    const qint64 made = timer.nsecsElapsed();
    window.ensurePolished();
    const QList<QWidget *> widgets = window.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        widget->ensurePolished();
    }
    const qint64 polished = timer.nsecsElapsed();
    grid->activate();
    benchmark::DoNotOptimize(window.sizeHint());
    const qint64 laidOut = timer.nsecsElapsed();
    return {double(polished - made), double(laidOut - polished), double(laidOut)};
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// What windows took that were opened under a style.
class WindowTimes
{
public:
    /// Opens a few windows.
    void measure()
    {
        constexpr int windowCount = 5;
        openWindow();
        for (int i = 0; i < windowCount; ++i) {
            m_times.push_back(openWindow());
        }
    }

    double medianOf(double WindowTime::*part) const
    {
        std::vector<double> values;
        for (const WindowTime &time : m_times) {
            values.push_back(time.*part);
        }
        return median(std::move(values));
    }

private:
    std::vector<WindowTime> m_times;
};

void report(benchmark::State &state, const WindowTimes &fusion, const WindowTimes &theme)
{
    const auto ratio = [&](double WindowTime::*part) {
        return theme.medianOf(part) / fusion.medianOf(part);
    };
    state.counters["fusion_ms"] = fusion.medianOf(&WindowTime::whole) * 1e-6;
    state.counters["theme_ms"] = theme.medianOf(&WindowTime::whole) * 1e-6;
    state.counters["theme/fusion"] = ratio(&WindowTime::whole);
    state.counters["polishing/fusion"] = ratio(&WindowTime::polishing);
    state.counters["layout/fusion"] = ratio(&WindowTime::layout);
}

/// The styles change while the benchmark runs; the first applied theme stays.
void useStyle(QStyle *style, const QPalette &palette, const QString &styleSheet)
{
    qApp->setStyleSheet(QString());
    QApplication::setStyle(style);
    QApplication::setPalette(palette);
    qApp->setStyleSheet(styleSheet);
}

QStyle *createThemeStyle(const QPalette &palette)
{
    auto *style = new TARN::BaseStyle;
    style->setPalette(palette);
    return style;
}

void applyTheme()
{
    TARN::BaseTheme(QStringLiteral(MOX_SHIPPED_THEMES "/Dark")).customize(qApp);
}

/// Opens windows under the theme's style, in turn with the toolkit's own, and reports the ratios of
/// the medians.
void openWindowUnderTheme(benchmark::State &state, bool withStyleSheet)
{
    static const bool applied = [] {
        applyTheme();
        return true;
    }();
    Q_UNUSED(applied)
    static const QString themeStyleSheet = qApp->styleSheet();
    static const QPalette palette = QApplication::palette();
    const QString styleSheet = withStyleSheet ? themeStyleSheet : QString();

    WindowTimes fusion;
    WindowTimes theme;
    for ([[maybe_unused]] auto iteration : state) {
        useStyle(QStyleFactory::create(QStringLiteral("fusion")), palette, styleSheet);
        fusion.measure();
        useStyle(createThemeStyle(palette), palette, styleSheet);
        theme.measure();
        state.SetIterationTime(theme.medianOf(&WindowTime::whole) * 1e-9);
    }
    report(state, fusion, theme);
}
BENCHMARK_CAPTURE(openWindowUnderTheme, style_alone, false)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(15);
BENCHMARK_CAPTURE(openWindowUnderTheme, with_stylesheet, true)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(15);

/// The same in the complete mode, which every application of the theme brings anew.
void openWindowInCompleteMode(benchmark::State &state)
{
    qApp->setProperty("appCompleteTheming", true);
    WindowTimes fusion;
    WindowTimes theme;
    for ([[maybe_unused]] auto iteration : state) {
        useStyle(QStyleFactory::create(QStringLiteral("fusion")), QPalette(), QString());
        fusion.measure();
        applyTheme();
        theme.measure();
        state.SetIterationTime(theme.medianOf(&WindowTime::whole) * 1e-9);
    }
    report(state, fusion, theme);
    qApp->setProperty("appCompleteTheming", QVariant());
}
BENCHMARK(openWindowInCompleteMode)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(15);

} // namespace

int main(int argc, char **argv)
{
    return runBenchmarks(argc, argv);
}
