#pragma once

class QApplication;
class QPalette;

namespace TARN {

/// Gives \a app a style with \a palette, whose disabled colours are derived, and the compiled-in
/// stylesheets. The theme's variables must have been published.
void installStyle(QApplication &app, const QPalette &palette);

} // namespace TARN
