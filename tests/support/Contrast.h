#pragma once

#include <QtGui/QColor>

/// Returns how light the opaque \a color is seen, from 0 to 1.
double relativeLuminance(const QColor &color);

/// Returns the contrast ratio (1 to 21) of two opaque colours.
double contrastRatio(const QColor &first, const QColor &second);
