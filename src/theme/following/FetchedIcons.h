#pragma once

namespace TARN {

/// Has widgets that fetch icons when the style changes fetch them, although it did not.
void fetchIcons();

/// Has tool bars fetch the icon of their extension again: they do so when they are turned, and not
/// when the style changes.
void fetchExtensionIcons();

/// Fits the buttons that close tabs to the font, since tab bars size them only once.
void fitCloseButtons();

} // namespace TARN
