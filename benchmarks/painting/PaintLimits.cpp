#include "PaintLimits.h"

#include "PaintCases.h"
#include "Styles.h"

namespace {

constexpr double HighestMilliseconds = 8;

struct RatioLimit
{
    const QString &name;
    double highest;
};

/// What a style has to keep.
struct StyleLimits
{
    const QString &style;
    double PaintCase::*highestCaseRatio;
    double highestMean;
    std::vector<RatioLimit> ratios;
};

const StyleLimits themeLimits{StyleNames::theme,
                              &PaintCase::highestRatio,
                              0.80,
                              {{MeasurementNames::formWindow, 0.80},
                               {MeasurementNames::dataWindow, 0.85},
                               {MeasurementNames::start, 1.4},
                               {MeasurementNames::memory, 1.25}}};

const StyleLimits completeLimits{StyleNames::complete,
                                 &PaintCase::highestCompleteRatio,
                                 0.50,
                                 {{MeasurementNames::formWindow, 0.45},
                                  {MeasurementNames::dataWindow, 0.55},
                                  {MeasurementNames::start, 1.5},
                                  {MeasurementNames::memory, 1.2}}};

const StyleLimits &limitsOf(const QString &style)
{
    return style == StyleNames::complete ? completeLimits : themeLimits;
}

} // namespace

const QStringList &judgedStyles()
{
    static const QStringList styles{StyleNames::theme, StyleNames::complete};
    return styles;
}

std::vector<Judgement> judgeCases(const Measurements &measurements, const QString &style)
{
    std::vector<Judgement> judgements;
    for (const PaintCase &paintCase : paintCases()) {
        if (measurements.has(style, paintCase.name)) {
            judgements.push_back({paintCase.name, measurements.ratio(style, paintCase.name),
                                  paintCase.*limitsOf(style).highestCaseRatio});
        }
    }
    return judgements;
}

std::vector<Judgement> judgeWhole(const Measurements &measurements, const QString &style,
                                  bool allCases)
{
    const StyleLimits &limits = limitsOf(style);
    std::vector<Judgement> judgements;
    if (allCases) {
        judgements.push_back({QStringLiteral("geometric mean of the cases, times fusion"),
                              measurements.meanRatio(style, paintCaseNames()), limits.highestMean});
    }
    for (const RatioLimit &limit : limits.ratios) {
        if (measurements.has(style, limit.name)) {
            judgements.push_back({limit.name + QStringLiteral(", times fusion"),
                                  measurements.ratio(style, limit.name), limit.highest});
        }
    }
    if (measurements.has(style, MeasurementNames::applying)) {
        judgements.push_back({QStringLiteral("applying the theme, milliseconds"),
                              measurements.value(style, MeasurementNames::applying) * 1e-6,
                              HighestMilliseconds});
    }
    return judgements;
}
