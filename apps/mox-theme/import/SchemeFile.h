#pragma once

#include "import/ColorScheme.h"

namespace TARN::ThemeTool {

/// Reads the colour scheme in the file at \a path, of whichever kind it is, into \a scheme. Stops
/// at the first problem.
SchemeProblem readScheme(const QString &path, ColorScheme &scheme);

} // namespace TARN::ThemeTool
