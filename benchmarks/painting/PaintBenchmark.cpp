#include "Measurements.h"
#include "PaintPlan.h"
#include "PaintReport.h"
#include "Probe.h"
#include "Styles.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <map>

namespace {

/// Goes through a plan. A style that fails is left out from then on.
class Measuring
{
public:
    Measuring(PaintPlan plan, const QString &settingsFolder)
        : m_plan(std::move(plan))
        , m_environment(probeEnvironment(settingsFolder))
    {
    }

    Measurements measure()
    {
        for (int round = 0; round < m_plan.rounds; ++round) {
            std::fprintf(stderr, "Painting: round %d of %d\n", round + 1, m_plan.rounds);
            paintRound();
        }
        if (m_plan.isWhole) {
            std::fprintf(stderr, "Starting processes\n");
            for (int i = 0; i < m_plan.starts; ++i) {
                startRound();
            }
        }
        return m_measurements;
    }

private:
    /// Measures everything once. The styles take turns at each case, since how fast the machine is
    /// changes from one moment to the next.
    void paintRound()
    {
        std::map<QString, PaintProbe> probes;
        for (const QString &style : qAsConst(m_plan.styles)) {
            probes.try_emplace(style, style, m_environment);
        }
        for (const QString &name : qAsConst(m_plan.names)) {
            const QStringList styles = m_plan.styles;
            for (const QString &style : styles) {
                PaintProbe &probe = probes.at(style);
                if (const std::optional<double> value = probe.measure(name)) {
                    m_measurements.add(style, name, *value);
                } else {
                    leaveOut(style, probe.errorText());
                }
            }
        }
    }

    void startRound()
    {
        for (const QString &style : {StyleNames::fusion, StyleNames::theme, StyleNames::complete}) {
            if (!m_plan.styles.contains(style)) {
                continue;
            }
            if (const std::optional<StartTimes> times = measureStart(style, m_environment)) {
                m_measurements.add(style, MeasurementNames::applying, times->applying);
                m_measurements.add(style, MeasurementNames::start, times->showing);
            } else {
                leaveOut(style, QString());
            }
        }
    }

    void leaveOut(const QString &style, const QString &errorText)
    {
        std::fprintf(stderr, "The style \"%s\" could not be measured\n%s", qPrintable(style),
                     qPrintable(errorText));
        m_plan.styles.removeAll(style);
        m_measurements.remove(style);
    }

    PaintPlan m_plan;
    QProcessEnvironment m_environment;
    Measurements m_measurements;
};

/// Saves pictures in a folder for each style.
int saveAllPictures(const PaintPlan &plan, const QString &settingsFolder)
{
    const QProcessEnvironment environment = probeEnvironment(settingsFolder);
    for (const QString &style : plan.styles) {
        const QDir folder(plan.pictureFolder + QLatin1Char('/') + style);
        if (!QDir().mkpath(folder.path()) || !savePictures(style, folder.path(), environment)) {
            std::fprintf(stderr, "There are no pictures of the style \"%s\"\n", qPrintable(style));
            return NotMeasured;
        }
        std::printf("%s\n", qPrintable(folder.path()));
    }
    return LimitsKept;
}

/// Prints what was measured. Returns the exit status.
int report(const Measurements &measurements, const PaintPlan &plan)
{
    if (!measurements.has(StyleNames::fusion)) {
        return NotMeasured;
    }
    QStringList styles;
    std::copy_if(plan.styles.cbegin() + 1, plan.styles.cend(), std::back_inserter(styles),
                 [&](const QString &style) { return measurements.has(style); });
    printTable(measurements, styles);
    bool allKept = true;
    for (const QString &style : judgedStyles()) {
        if (!plan.styles.contains(style)) {
            continue;
        }
        if (!measurements.has(style)) {
            return NotMeasured;
        }
        allKept = printLimits(style, judgeCases(measurements, style),
                              judgeWhole(measurements, style, plan.isWhole)) &&
                  allKept;
    }
    return allKept ? LimitsKept : LimitsNotKept;
}

int runBenchmark(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const PaintPlan plan = readPlan(application);
    const QTemporaryDir settingsFolder;
    if (!plan.pictureFolder.isEmpty()) {
        return saveAllPictures(plan, settingsFolder.path());
    }
    return report(Measuring(plan, settingsFolder.path()).measure(), plan);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc > 1 && std::strcmp(argv[1], "--probe") == 0) {
        const QApplication application(argc, argv);
        return runProbe(QCoreApplication::arguments().mid(2));
    }
    return runBenchmark(argc, argv);
}
