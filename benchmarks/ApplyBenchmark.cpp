#include "BenchmarkMain.h"
#include "RealisticTheme.h"

#include <theme/BaseTheme.h>

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtGui/QFontDatabase>
#include <QtGui/QIcon>
#include <QtWidgets/QApplication>
#include <QtXml/QDomDocument>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <vector>

namespace {

const RealisticTheme &realisticTheme()
{
    static const RealisticTheme theme;
    return theme;
}

/// Removes what each application of a theme adds, so that all of them start alike.
void forgetThemes()
{
    for (const char *prefix : {"icons", "cursors", "resources"}) {
        QDir::setSearchPaths(QString::fromLatin1(prefix), {});
    }
    QIcon::setThemeSearchPaths({});
    QIcon::setFallbackSearchPaths({});
    qApp->setProperty("theme_var", QVariant());
    QFontDatabase::removeAllApplicationFonts();
    // The next registration of a font is not to pay for reading the system's fonts, and the next
    // large allocation not for sweeping up what was freed until here.
    QFontDatabase().families();
    benchmark::DoNotOptimize(QByteArray(1 << 20, '\0'));
}

template <typename Function>
qint64 nanoseconds(Function function)
{
    QElapsedTimer timer;
    timer.start();
    function();
    return timer.nsecsElapsed();
}

double median(std::vector<qint64> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return static_cast<double>(*middle);
}

void parse()
{
    QFile file(realisticTheme().configurationFile());
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file)) {
        qFatal("The benchmark's configuration file does not parse");
    }
    benchmark::DoNotOptimize(document);
}

/// Applies the theme, in turn with nothing but parsing its configuration file, and reports the
/// ratio of the medians.
void applyTheme(benchmark::State &state)
{
    TARN::BaseTheme theme(realisticTheme().directory());
    std::vector<qint64> parses;
    std::vector<qint64> applications;
    for ([[maybe_unused]] auto iteration : state) {
        forgetThemes();
        parses.push_back(nanoseconds(parse));
        forgetThemes();
        applications.push_back(nanoseconds([&theme] { theme.customize(qApp); }));
        state.SetIterationTime(static_cast<double>(applications.back()) * 1e-9);
    }
    state.counters["parse_ms"] = median(parses) * 1e-6;
    state.counters["apply_ms"] = median(applications) * 1e-6;
    state.counters["apply/parse"] = median(applications) / median(parses);
}
BENCHMARK(applyTheme)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(200);

/// The same for an application that switches cleanly.
void applyThemeCleanly(benchmark::State &state)
{
    qApp->setProperty("appLiveThemeSwitch", true);
    applyTheme(state);
    qApp->setProperty("appLiveThemeSwitch", QVariant());
}
BENCHMARK(applyThemeCleanly)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(200);

} // namespace

int main(int argc, char **argv)
{
    return runBenchmarks(argc, argv);
}
