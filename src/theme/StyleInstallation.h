#pragma once

class QApplication;
class QPalette;

namespace TARN {

/// Gives the application a style with \a palette, whose disabled colours are derived. The theme's
/// variables must have been published.
void installStyle(const QPalette &palette);

/// Gives \a app the compiled-in stylesheets. The theme's variables must have been published.
void installStyleSheet(QApplication &app);

} // namespace TARN
