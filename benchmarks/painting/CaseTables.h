#pragma once

#include "PaintCases.h"

/// What a single case may cost, against "fusion".
constexpr double HighestRatio = 1.3;

/// What a case may cost for which the stylesheet alone takes as long as "fusion" does.
constexpr double HighestRatioOnStyleSheet = 1.7;

/// \name The same in the complete mode, which has no stylesheet
/// \{
constexpr double HighestCompleteRatio = 1.1;
constexpr double HighestCompleteViewRatio = 0.9;
constexpr double HighestCompleteSpinBoxRatio = 1.2;
/// \}

/// A kind of widget with the states that it is measured in.
struct CaseRow
{
    const char *widget;
    WidgetMaker make;
    std::vector<WidgetState> states;
    double highestRatio = HighestRatio;
    double highestCompleteRatio = HighestCompleteRatio;
};

using CaseTable = std::vector<CaseRow>;

CaseTable buttonCases();
CaseTable inputCases();
CaseTable rangeCases();
CaseTable containerCases();
CaseTable barCases();
CaseTable itemViewCases();
