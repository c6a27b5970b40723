#pragma once

#include <QtGui/QColor>

namespace TARN::ThemeTool {

/// A colour by lightness, chroma and hue in a space in which equal steps look equally large.
struct Oklch
{
    double lightness = 0; ///< from 0, black, to 1, white
    double chroma = 0;    ///< from 0, grey; the strongest colours of a screen reach 0.32
    double hue = 0;       ///< in degrees, from 0 to 360; without meaning for greys
};

/// Returns \a color, whose alpha is left out, by lightness, chroma and hue.
Oklch toOklch(const QColor &color);

/// Returns the opaque screen colour of \a color, in 8 bits a channel. Chroma that no screen can
/// show at that lightness and hue is reduced, so that both stay.
QColor toColor(const Oklch &color);

/// Returns how far two opaque colours look apart: 0 for equal ones, about 0.02 where a difference
/// is just noticed side by side, 1 from black to white.
double colorDistance(const QColor &first, const QColor &second);

} // namespace TARN::ThemeTool
