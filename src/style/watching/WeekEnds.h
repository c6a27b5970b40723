#pragma once

class QCalendarWidget;

namespace TARN {

class Polishing;

/// Has the calendar that is polished show week-ends in the theme's colour of dangers instead of the
/// toolkit's red, and fainter while it is disabled. What a program has set for these days stays.
void tintWeekEnds(Polishing &polishing);

/// Has \a calendar show them as it is enabled now, if it was polished so.
void updateWeekEnds(QCalendarWidget &calendar);

} // namespace TARN
