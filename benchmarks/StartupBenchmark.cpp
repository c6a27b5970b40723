#include "BenchmarkMain.h"

#include <QtCore/QProcess>
#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <cstdio>

namespace {

const QString theme = QStringLiteral(MOX_COMMON_THEME_LIBRARY);
const QString svg = QStringLiteral("libQt5Svg.so.5");
const QString xml = QStringLiteral("libQt5Xml.so.5");
const QString timed = QStringLiteral("--");

/// One way to start an application.
struct Start
{
    const char *name;
    QStringList probeArguments;
    QVector<double> seconds = {};

    /// Starts a process. Returns whether it came up.
    bool run()
    {
        QProcess probe;
        probe.start(QStringLiteral(MOX_STARTUP_PROBE), probeArguments);
        bool isNumber = false;
        if (probe.waitForFinished() && probe.exitCode() == 0) {
            seconds.append(probe.readAllStandardOutput().trimmed().toDouble(&isNumber) * 1e-9);
        }
        if (!isNumber) {
            std::fprintf(stderr, "%s", probe.readAllStandardError().constData());
        }
        return isNumber;
    }

    double median()
    {
        auto *const middle = seconds.begin() + seconds.size() / 2;
        std::nth_element(seconds.begin(), middle, seconds.end());
        return *middle;
    }
};

/// What the library adds to the start of an application: to one that does without, to one that
/// uses the Qt modules that the library is linked with, and to one that has them loaded already, so
/// that what they cost is told from what the library and its compiled-in images cost.
void startUp(benchmark::State &state)
{
    enum { Plain, WithModules, WithLibrary, ModulesLoaded, LibraryAlone };
    std::array<Start, 5> starts{{{"plain", {}},
                                 {"modules", {timed, svg, xml}},
                                 {"library", {timed, theme}},
                                 {"modulesLoaded", {svg, xml}},
                                 {"libraryAlone", {svg, xml, timed, theme}}}};
    for ([[maybe_unused]] auto iteration : state) {
        for (Start &start : starts) {
            if (!start.run()) {
                state.SkipWithError("The start-up probe failed");
                return;
            }
        }
        state.SetIterationTime(starts[WithLibrary].seconds.last());
    }

    std::array<double, 5> medians{};
    std::transform(starts.begin(), starts.end(), medians.begin(),
                   [](Start &start) { return start.median(); });
    for (std::size_t i = 0; i < starts.size(); ++i) {
        state.counters[starts.at(i).name] = medians.at(i);
    }
    state.counters["modulesRatio"] = medians[WithModules] / medians[Plain];
    state.counters["libraryRatio"] = medians[WithLibrary] / medians[Plain];
    state.counters["libraryAloneRatio"] = medians[LibraryAlone] / medians[ModulesLoaded];
}
BENCHMARK(startUp)->Iterations(101)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    return runBenchmarks(argc, argv);
}
