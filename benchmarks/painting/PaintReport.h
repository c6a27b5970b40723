#pragma once

#include "Measurements.h"
#include "PaintLimits.h"

/// Prints what was measured: under "fusion" as it is, under \a styles as ratios.
void printTable(const Measurements &measurements, const QStringList &styles);

/// Prints the judgements on \a style. Returns whether all of them are met.
bool printLimits(const QString &style, const std::vector<Judgement> &cases,
                 const std::vector<Judgement> &whole);
