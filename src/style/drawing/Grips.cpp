#include "style/drawing/Grips.h"

#include <QtGui/QPainter>

namespace TARN {

namespace {

/// Beyond, the coordinates of the painter overflow.
constexpr qint64 farthest = 1 << 24;
/// A row of so many grips is longer than any screen.
constexpr qint64 mostGrips = 10000;

/// Where grips stand: from the first position on, every so many pixels, before the end.
struct GripRow
{
    qint64 first;
    qint64 end;
    qint64 step;
};

/// Returns the part of a row that can be painted. One that does not advance is its first grip.
GripRow paintableRow(qint64 from, qint64 to, qint64 step)
{
    if (step <= 0) {
        return {from, from < -farthest ? from : qMin(qMin(to, farthest), from + 1), 1};
    }
    const qint64 skipped = qMax<qint64>(0, -farthest - from + step - 1) / step;
    const qint64 first = from + skipped * step;
    return {first, qMin(qMin(to, farthest), first + mostGrips * step), step};
}

QSize dotSize(int extent)
{
    const int bounded = int(qBound<qint64>(0, extent, farthest));
    return {bounded, bounded};
}

} // namespace

void drawGrips(QPainter &painter, Qt::Orientation orientation, int from, int to, int across,
               int step, int lightSize, int darkSize)
{
    if (qAbs(qint64(across)) > farthest) {
        return;
    }
    const QColor light(255, 255, 255, 90);
    const QColor dark(0, 0, 0, 60);
    const bool isVertical = orientation == Qt::Vertical;
    const QSize lightDot = dotSize(lightSize);
    // The dark dots of a vertical row are always single pixels.
    const QSize darkDot = dotSize(isVertical ? 1 : darkSize);
    const GripRow row = paintableRow(from, to, step);
    for (qint64 along = row.first; along < row.end; along += row.step) {
        const QPoint corner = isVertical ? QPoint(across, int(along)) : QPoint(int(along), across);
        painter.fillRect(QRect(corner, lightDot), light);
        painter.fillRect(QRect(corner, darkDot), dark);
    }
}

} // namespace TARN
