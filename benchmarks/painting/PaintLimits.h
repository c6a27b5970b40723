#pragma once

#include "Measurements.h"

#include <vector>

/// What something may cost under a style of the library, and what it does cost.
struct Judgement
{
    QString text;
    double value;
    double highest;

    bool isMet() const { return value <= highest; }
};

/// Returns the styles that have limits: those of the library.
const QStringList &judgedStyles();

/// Judges the single cases under one of these styles, as far as they were measured.
std::vector<Judgement> judgeCases(const Measurements &measurements, const QString &style);

/// Judges everything else, as far as it was measured. \a allCases tells whether the mean is one of
/// all cases, which alone is judged.
std::vector<Judgement> judgeWhole(const Measurements &measurements, const QString &style,
                                  bool allCases);
