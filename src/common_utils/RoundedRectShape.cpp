#include "common_utils/Helpers.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

namespace TARN::Helpers {

namespace {

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

void drawRoundedRectShape(const QRectF &rect, int radius,
                          QFlags<StraightCornerFlag> straightCorners, QPainter *painter)
{
    if (painter == nullptr || !isPaintable(rect)) {
        return;
    }
    const QRectF shape = withinReach(rect);
    if (shape.isEmpty()) {
        return;
    }
    const StraightCornerFlags straight = straightCorners & allCorners;
    const qreal roundness = qMin<qreal>(radius, qMin(shape.width(), shape.height()) / 2);
    if (roundness <= 0 || straight == allCorners) {
        painter->drawRect(shape);
    } else if (!straight) {
        painter->drawRoundedRect(shape, roundness, roundness);
    } else {
        painter->drawPath(outline(shape, roundness, straight));
    }
}

} // namespace TARN::Helpers
