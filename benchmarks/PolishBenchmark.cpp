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

/// Creates a window of many widgets, polishes all of them and lays them out.
void openWindow()
{
    QWidget window;
    auto *grid = new QGridLayout(&window);
    for (int i = 0; i < WidgetCount; ++i) {
        grid->addWidget(makers[i % std::size(makers)](), i / ColumnCount, i % ColumnCount);
    }
    window.ensurePolished();
    const QList<QWidget *> widgets = window.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        widget->ensurePolished();
    }
    grid->activate();
    benchmark::DoNotOptimize(window.sizeHint());
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Returns the median of a few windows, in nanoseconds.
double windowTime()
{
    constexpr int windowCount = 5;
    openWindow();
    std::vector<double> times;
    for (int i = 0; i < windowCount; ++i) {
        QElapsedTimer timer;
        timer.start();
        openWindow();
        times.push_back(static_cast<double>(timer.nsecsElapsed()));
    }
    return median(times);
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

/// Opens the window under the theme's style, in turn with the toolkit's own, and reports the ratio
/// of the medians.
void openWindowUnderTheme(benchmark::State &state, bool withStyleSheet)
{
    static const bool applied = [] {
        TARN::BaseTheme(QStringLiteral(MOX_SHIPPED_THEMES "/Dark")).customize(qApp);
        return true;
    }();
    Q_UNUSED(applied)
    static const QString themeStyleSheet = qApp->styleSheet();
    static const QPalette palette = QApplication::palette();
    const QString styleSheet = withStyleSheet ? themeStyleSheet : QString();

    std::vector<double> fusion;
    std::vector<double> theme;
    for ([[maybe_unused]] auto iteration : state) {
        useStyle(QStyleFactory::create(QStringLiteral("fusion")), palette, styleSheet);
        fusion.push_back(windowTime());
        useStyle(createThemeStyle(palette), palette, styleSheet);
        theme.push_back(windowTime());
        state.SetIterationTime(theme.back() * 1e-9);
    }
    state.counters["fusion_ms"] = median(fusion) * 1e-6;
    state.counters["theme_ms"] = median(theme) * 1e-6;
    state.counters["theme/fusion"] = median(theme) / median(fusion);
}
BENCHMARK_CAPTURE(openWindowUnderTheme, style_alone, false)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(15);
BENCHMARK_CAPTURE(openWindowUnderTheme, with_stylesheet, true)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(15);

} // namespace

int main(int argc, char **argv)
{
    return runBenchmarks(argc, argv);
}
