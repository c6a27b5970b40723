#pragma once

#include "Measurements.h"

#include <vector>

/// What something may cost under the theme, and what it does cost.
struct Judgement
{
    QString text;
    double value;
    double highest;

    bool isMet() const { return value <= highest; }
};

/// Judges the single cases, as far as they were measured.
std::vector<Judgement> judgeCases(const Measurements &measurements);

/// Judges everything else, as far as it was measured. \a allCases tells whether the mean is one of
/// all cases, which alone is judged.
std::vector<Judgement> judgeWhole(const Measurements &measurements, bool allCases);
