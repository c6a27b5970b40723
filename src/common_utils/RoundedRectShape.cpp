#include "common_utils/RoundedRectOutline.h"
#include "common_utils/RoundedRectTiles.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

namespace TARN {

namespace {

using namespace Helpers;

constexpr StraightCornerFlags allCorners = StraightCornerFlags(
    StraightTopLeft | StraightTopRight | StraightBottomRight | StraightBottomLeft);

/// No paint device reaches this far from the origin, and an outline that did would only keep the
/// stroker busy.
constexpr qreal farthestCoordinate = 1e6;

bool isPaintable(const QRectF &rect)
{
    return qIsFinite(rect.left()) && qIsFinite(rect.top()) && qIsFinite(rect.width()) &&
           qIsFinite(rect.height()) && !rect.isEmpty();
}

QRectF withinReach(const QRectF &rect)
{
    static const QRectF reach(QPointF(-farthestCoordinate, -farthestCoordinate),
                              QPointF(farthestCoordinate, farthestCoordinate));
    return reach.contains(rect) ? rect : rect.intersected(reach);
}

/// Returns the outline, which runs clockwise from the left end of the top edge.
QPainterPath outline(const QRectF &rect, qreal radius, StraightCornerFlags straightCorners)
{
    const qreal diameter = 2 * radius;
    const qreal right = rect.right() - diameter;
    const qreal bottom = rect.bottom() - diameter;
    QPainterPath path;
    const auto addCorner = [&](StraightCornerFlag flag, const QPointF &corner,
                               const QPointF &circle, qreal startAngle) {
        if (straightCorners.testFlag(flag)) {
            path.lineTo(corner);
        } else {
            path.arcTo(QRectF(circle, QSizeF(diameter, diameter)), startAngle, -90);
        }
    };
    path.moveTo(straightCorners.testFlag(StraightTopLeft) ? rect.left() : rect.left() + radius,
                rect.top());
    addCorner(StraightTopRight, rect.topRight(), QPointF(right, rect.top()), 90);
    addCorner(StraightBottomRight, rect.bottomRight(), QPointF(right, bottom), 0);
    addCorner(StraightBottomLeft, rect.bottomLeft(), QPointF(rect.left(), bottom), 270);
    addCorner(StraightTopLeft, rect.topLeft(), rect.topLeft(), 180);
    path.closeSubpath();
    return path;
}

} // namespace

void drawOutline(const QRectF &rect, qreal radius, StraightCornerFlags straightCorners,
                 QPainter &painter)
{
    const StraightCornerFlags straight = straightCorners & allCorners;
    if (radius <= 0 || straight == allCorners) {
        painter.drawRect(rect);
    } else if (!straight) {
        painter.drawRoundedRect(rect, radius, radius);
    } else {
        painter.drawPath(outline(rect, radius, straight));
    }
}

void Helpers::drawRoundedRectShape(const QRectF &rect, int radius,
                                   QFlags<StraightCornerFlag> straightCorners, QPainter *painter)
{
    if (painter == nullptr || !isPaintable(rect)) {
        return;
    }
    const QRectF shape = withinReach(rect);
    if (shape.isEmpty()) {
        return;
    }
    const qreal roundness = qMin<qreal>(qMax(radius, 0), qMin(shape.width(), shape.height()) / 2);
    if (!drawFromTile(shape, roundness, straightCorners & allCorners, *painter)) {
        drawOutline(shape, roundness, straightCorners, *painter);
    }
}

} // namespace TARN
