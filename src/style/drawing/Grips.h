#pragma once

#include <QtCore/Qt>

class QBrush;
class QPainter;
class QRect;

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

/// \name Grips that stand out from any ground: dots in a colour of the theme
/// They lie on whole pixels of the device, and inside of \a rect, which may have no room for all.
/// \{
/// Draws a row of at most \a count dots in the middle of \a rect.
void drawDotRow(QPainter &painter, const QRect &rect, Qt::Orientation orientation, int count,
                const QBrush &brush);
/// Draws the dots of a triangle, of which the right angle is in the \a corner of \a rect.
void drawDotTriangle(QPainter &painter, const QRect &rect, Qt::Corner corner, const QBrush &brush);
/// \}

} // namespace TARN
