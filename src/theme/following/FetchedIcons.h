#pragma once

namespace TARN {

/// Has widgets that fetch icons when the style changes fetch them, although it did not.
void fetchIcons();

/// Has the extensions of tool bars and calendars fetch their icons again: they do so when they are
/// turned, and not when the style changes.
void fetchIconsOfTurned();

/// Fits the buttons that close tabs to the font, since tab bars size them only once.
void fitCloseButtons();

} // namespace TARN
