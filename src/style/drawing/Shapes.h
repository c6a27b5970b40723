#pragma once

#include "common_utils/Helpers.h"

#include <QtCore/QRectF>
#include <QtGui/QBrush>
#include <QtGui/QPen>

class QPainter;

/// Rectangles, round at their corners, and the pens of their outlines.
namespace TARN {

/// The theme's corner radii.
enum class CornerSize { Small, Base, Medium, Large };

/// Returns the theme's radius, truncated to whole device-independent pixels.
int cornerRadius(CornerSize size);

/// Returns \a rect within what is ever painted: its edges may be moved and measured without getting
/// out of the range of numbers.
QRect withinReach(const QRect &rect);

/// Returns the rectangle along which an outline of one pixel runs just inside of \a rect.
QRectF onHalfPixel(const QRect &rect);

/// Returns the pen of outlines: one pixel wide, with mitred corners.
QPen outlinePen(const QBrush &brush);

/// Fills and strokes a rounded rectangle; \a radius 0 gives crisp corners without antialiasing.
/// Changes the pen, the brush and the antialiasing of \a painter.
void drawShape(QPainter &painter, const QRectF &rect, int radius, const QPen &pen,
               const QBrush &brush,
               Helpers::StraightCornerFlags straightCorners = Helpers::NoStraightCorner);

} // namespace TARN
