#pragma once

class QWidget;

namespace TARN {
class Polishing;
}

/// Calendars; their days are items of a table.
namespace TARN::Calendars {

/// Tells whether \a widget is the bar above the days of a calendar.
bool isNavigationBar(const QObject *widget);

/// Has the bar look like the window that it stands on, where it would be a selection.
void polishNavigationBar(Polishing &polishing);

} // namespace TARN::Calendars
