#pragma once

class QBrush;
class QPainter;
class QRect;

namespace TARN {

/// Strokes a line of two pixels on and two off, one pixel of the device wide, with slightly rounded
/// corners just inside of \a rect. Changes the pen, the brush and the antialiasing of \a painter.
///
/// Where the result is the same it is drawn from kept pictures, which takes a twentieth of the
/// time: the painter draws a plain colour without rotation into a picture, and the corner of the
/// rectangle lies on a whole pixel of the device.
void drawDashedOutline(const QRect &rect, const QBrush &brush, QPainter &painter);

} // namespace TARN
