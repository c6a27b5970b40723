#pragma once

#include "style/asking/Mode.h"

#include <QtGui/QPalette>

namespace TARN {

/// Returns \a palette, as a theme maps it, with the brushes of its disabled group derived from
/// those of its current one. In the complete mode selections are opaque, since the toolkit paints
/// them several times over each other, and disabled texts have the same colour on them as beside
/// them, unless it could not be read there.
QPalette applicationPalette(const QPalette &palette, Mode mode);

} // namespace TARN
