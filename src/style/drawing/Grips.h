#pragma once

#include <QtCore/Qt>

class QPainter;

namespace TARN {

/// \name The grips of everything that can be moved
/// \{
inline constexpr int gripStep = 3;
inline constexpr int lightGrip = 2;
inline constexpr int darkGrip = 1;
/// \}

/// Draws a row of dots by which something can be gripped, from the coordinate \a from to before
/// \a to along \a orientation, every \a step pixels, at the coordinate \a across. Each dot is a
/// light square of \a lightSize with a dark one of \a darkSize on it; the dark one of a vertical
/// row is always a single pixel.
void drawGrips(QPainter &painter, Qt::Orientation orientation, int from, int to, int across,
               int step = gripStep, int lightSize = lightGrip, int darkSize = darkGrip);

} // namespace TARN
