#include "PaintLimits.h"

#include "PaintCases.h"
#include "Styles.h"

namespace {

constexpr double HighestMean = 0.80;
constexpr double HighestMilliseconds = 8;

struct RatioLimit
{
    const QString &name;
    double highest;
};

const RatioLimit ratioLimits[] = {
    {MeasurementNames::formWindow, 0.80},
    {MeasurementNames::dataWindow, 0.85},
    {MeasurementNames::start, 1.4},
    {MeasurementNames::memory, 1.25},
};

} // namespace

std::vector<Judgement> judgeCases(const Measurements &measurements)
{
    std::vector<Judgement> judgements;
    for (const PaintCase &paintCase : paintCases()) {
        if (measurements.has(StyleNames::theme, paintCase.name)) {
            judgements.push_back({paintCase.name,
                                  measurements.ratio(StyleNames::theme, paintCase.name),
                                  paintCase.highestRatio});
        }
    }
    return judgements;
}

std::vector<Judgement> judgeWhole(const Measurements &measurements, bool allCases)
{
    std::vector<Judgement> judgements;
    if (allCases) {
        judgements.push_back({QStringLiteral("geometric mean of the cases, times fusion"),
                              measurements.meanRatio(StyleNames::theme, paintCaseNames()),
                              HighestMean});
    }
    for (const RatioLimit &limit : ratioLimits) {
        if (measurements.has(StyleNames::theme, limit.name)) {
            judgements.push_back({limit.name + QStringLiteral(", times fusion"),
                                  measurements.ratio(StyleNames::theme, limit.name),
                                  limit.highest});
        }
    }
    if (measurements.has(StyleNames::theme, MeasurementNames::applying)) {
        judgements.push_back(
            {QStringLiteral("applying the theme, milliseconds"),
             measurements.value(StyleNames::theme, MeasurementNames::applying) * 1e-6,
             HighestMilliseconds});
    }
    return judgements;
}
