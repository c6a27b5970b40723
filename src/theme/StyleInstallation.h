#pragma once

#include "style/asking/Mode.h"

class QApplication;
class QPalette;

namespace TARN {

/// Returns the mode that \a app asks for.
Mode wantedMode(const QApplication &app);

/// Gives \a app a style with \a palette, whose disabled colours are derived. The theme's
/// variables must have been published.
void installStyle(QApplication &app, const QPalette &palette);

/// Gives \a app the compiled-in stylesheets. The theme's variables must have been published.
void installStyleSheet(QApplication &app);

/// Takes the compiled-in stylesheets off \a app, unless somebody has put others in their place.
void removeInstalledStyleSheet(QApplication &app);

} // namespace TARN
