#pragma once

#include <mox_common_utils_export.h>

#include <QtGui/QColor>

/// How well colours are told apart, as the Web Content Accessibility Guidelines measure it.
namespace TARN::Helpers {

/// Returns how light the opaque \a color is seen, from 0 to 1.
MOX_COMMON_UTILS_EXPORT double relativeLuminance(const QColor &color);

/// Returns the contrast ratio (1 to 21) of two opaque colours.
MOX_COMMON_UTILS_EXPORT double contrastRatio(const QColor &first, const QColor &second);

} // namespace TARN::Helpers
