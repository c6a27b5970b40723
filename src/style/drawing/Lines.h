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

/// Fills \a rect, of which the edges are moved to the nearest pixels of the device.
void fillOnPixels(QPainter &painter, const QRectF &rect, const QBrush &brush);

/// Draws dashes of one pixel along the middle of \a rect, as long as the gaps between them.
void drawDashes(QPainter &painter, const QRect &rect, Qt::Orientation orientation,
                const QBrush &brush);

} // namespace TARN
