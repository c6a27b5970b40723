#pragma once

#include <QtCore/QRect>

class QBrush;
class QPainter;

/// Straight lines on whole pixels of the device.
namespace TARN {

/// How wide straight lines are.
enum class Line {
    Pixel,    ///< one pixel, rounded down to whole pixels of the device
    Hairline, ///< one pixel of the device, however small it is
    Exact     ///< one pixel of any scale, so that lines beside each other leave no gap
};

/// \name Straight lines
/// They lie along the inside of \a rect on whole pixels of the device. Stroking them takes a
/// hundred times as long.
/// \{
void fillEdge(QPainter &painter, const QRect &rect, Qt::Edge edge, const QBrush &brush,
              Line line = Line::Pixel);
void fillFrame(QPainter &painter, const QRect &rect, const QBrush &brush, Line line = Line::Pixel);
/// \}

} // namespace TARN
