#include "style/drawing/Grips.h"

#include "style/drawing/Lines.h"

#include <QtCore/QRect>
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

/// The dots of a theme's colour, and what is between the beginnings of two. Four units are a whole
/// number of pixels at every usual scale, so that all dots look alike.
constexpr int dotExtent = 2;
constexpr int dotStep = 4;
/// How many dots there are along a side of a triangle, and how far it stays away from its corner.
constexpr int triangleSide = 3;
constexpr int triangleMargin = 2;

/// Returns how many of \a count dots there is room for.
int dotsIn(int length, int count)
{
    return qBound(0, (length - dotExtent) / dotStep + (length < dotExtent ? 0 : 1), count);
}

void drawDot(QPainter &painter, const QPoint &corner, const QBrush &brush)
{
    fillOnPixels(painter, QRect(corner, QSize(dotExtent, dotExtent)), brush);
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

void drawDotRow(QPainter &painter, const QRect &rect, Qt::Orientation orientation, int count,
                const QBrush &brush)
{
    const bool isHorizontal = orientation == Qt::Horizontal;
    const int across = isHorizontal ? rect.height() : rect.width();
    const int along = isHorizontal ? rect.width() : rect.height();
    if (across < dotExtent) {
        return;
    }
    const int dots = dotsIn(along, count);
    const int first = (along - (dots - 1) * dotStep - dotExtent) / 2;
    const int middle = (across - dotExtent) / 2;
    for (int i = 0; i < dots; ++i) {
        const int position = first + i * dotStep;
        drawDot(painter,
                rect.topLeft() +
                    (isHorizontal ? QPoint(position, middle) : QPoint(middle, position)),
                brush);
    }
}

void drawDotTriangle(QPainter &painter, const QRect &rect, Qt::Corner corner, const QBrush &brush)
{
    const bool isAtLeft = corner == Qt::TopLeftCorner || corner == Qt::BottomLeftCorner;
    const bool isAtTop = corner == Qt::TopLeftCorner || corner == Qt::TopRightCorner;
    const int dots = dotsIn(qMin(rect.width(), rect.height()) - triangleMargin, triangleSide);
    for (int row = 0; row < dots; ++row) {
        for (int column = 0; column + row < dots; ++column) {
            const int x = triangleMargin + column * dotStep;
            const int y = triangleMargin + row * dotStep;
            drawDot(painter,
                    {isAtLeft ? rect.left() + x : rect.right() + 1 - x - dotExtent,
                     isAtTop ? rect.top() + y : rect.bottom() + 1 - y - dotExtent},
                    brush);
        }
    }
}

} // namespace TARN
