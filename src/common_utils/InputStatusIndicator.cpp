#include "common_utils/Helpers.h"

#include <QtCore/QtMath>
#include <QtGui/QPainter>

#include <cmath>

namespace TARN::Helpers {

namespace {

/// A disc of this diameter marks an input of the usual height as clearly as a larger one would,
/// and leaves the room to the text.
constexpr qreal largestDiameter = 14;
/// The exclamation mark in a smaller disc is a smudge.
constexpr qreal smallestDiameter = 7;
constexpr qreal diameterToHeight = 0.6;
/// The distance to the trailing edge in an input that is much higher than the mark.
constexpr qreal largestMargin = 6;

/// Up to this perceived brightness white stands out from a colour by about 3 to 1 or more. It is
/// preferred to black, which looks dull on the mid tones that mark errors.
constexpr int brightestUnderWhite = 148;

/// How a mark is composed, in whole pixels: the disc and, in it, the upright exclamation mark.
struct MarkMetrics
{
    int diameter;
    int stemWidth;
    int stemHeight;
    int gap;
    int top;
};

/// Returns the metrics of the largest mark that is at most \a size pixels in diameter.
///
/// Disc and stem have to be both even or both odd: only then both are symmetrical about the same
/// axis and have their edges on the pixel grid. The same holds for the height of the exclamation
/// mark.
MarkMetrics metricsFor(int size)
{
    MarkMetrics metrics{};
    metrics.stemWidth = qMax(1, qRound(size / 6.5));
    const int parity = metrics.stemWidth % 2;
    metrics.diameter = size % 2 == parity ? size : size - 1;
    metrics.gap = qMax(1, qRound(metrics.diameter / 14.0));
    int height = 2 * qRound((0.6 * metrics.diameter - parity) / 2) + parity;
    if (height - metrics.gap < 3 * metrics.stemWidth) {
        // A stem that is hardly longer than the dot would make a colon.
        height += 2;
    }
    metrics.stemHeight = height - metrics.gap - metrics.stemWidth;
    metrics.top = (metrics.diameter - height) / 2;
    return metrics;
}

/// Returns whether \a rect is finite and lies where a paint device could show it.
bool isWithinReach(const QRectF &rect)
{
    constexpr qreal farthest = 1e6;
    return std::abs(rect.left()) < farthest && std::abs(rect.top()) < farthest &&
           std::abs(rect.right()) < farthest && std::abs(rect.bottom()) < farthest;
}

/// Returns the part of \a rect that consists of whole pixels.
QRectF wholePixels(const QRectF &rect)
{
    // What transforms leave of rounding errors must not cost a row of pixels.
    constexpr qreal slack = 1e-6;
    return {QPointF(std::ceil(rect.left() - slack), std::ceil(rect.top() - slack)),
            QPointF(std::floor(rect.right() + slack), std::floor(rect.bottom() + slack))};
}

/// Returns how far a corner of \a radius reaches into the rows of a mark that stands \a distance
/// below the top edge.
qreal cornerInset(qreal radius, qreal distance)
{
    if (radius <= distance) {
        return 0;
    }
    const qreal rise = radius - distance;
    return radius - qSqrt(radius * radius - rise * rise);
}

/// Paints the mark with its top left corner at \a origin, in the pixels of a grid that
/// \a toLogical takes to logical coordinates.
void paintMark(const MarkMetrics &metrics, const QPointF &origin, const QTransform &toLogical,
               const QColor &color, QPainter *painter)
{
    const auto logical = [&](qreal x, qreal y, qreal width, qreal height) {
        return toLogical.mapRect(QRectF(origin.x() + x, origin.y() + y, width, height));
    };
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    painter->drawEllipse(logical(0, 0, metrics.diameter, metrics.diameter));

    painter->setBrush(getPerceivedBrightness(color) > brightestUnderWhite ? Qt::black : Qt::white);
    // Whole pixels come out whole only where inexact coordinates are rounded to them.
    painter->setRenderHint(QPainter::Antialiasing,
                           painter->deviceTransform().type() > QTransform::TxScale);
    const qreal left = (metrics.diameter - metrics.stemWidth) / 2.0;
    const qreal dotTop = metrics.top + metrics.stemHeight + metrics.gap;
    painter->drawRect(logical(left, metrics.top, metrics.stemWidth, metrics.stemHeight));
    painter->drawRect(logical(left, dotTop, metrics.stemWidth, metrics.stemWidth));
    painter->restore();
}

} // namespace

void drawInputStatusIndicator(const QRectF &rect, int radius, const QColor &color,
                              QPainter *painter)
{
    if (painter == nullptr || !color.isValid() || !isWithinReach(rect)) {
        return;
    }
    // On a rotated device there is no pixel grid to keep to.
    const QTransform toDevice = painter->deviceTransform();
    const bool onGrid = toDevice.type() <= QTransform::TxScale && toDevice.isInvertible();
    const QTransform toGrid = onGrid ? toDevice : QTransform();
    const QRectF area = wholePixels(toGrid.mapRect(rect));
    const qreal unit = qAbs(toGrid.m22());

    const qreal size = qMin(diameterToHeight * area.height(), largestDiameter * unit);
    if (size < smallestDiameter * unit) {
        return;
    }
    const MarkMetrics metrics = metricsFor(qRound(size));
    const qreal distance = (area.height() - metrics.diameter) / 2;
    const qreal cornerRadius = qBound<qreal>(0, radius * unit, area.height() / 2);
    const int margin =
        qRound(qMin(distance, largestMargin * unit) + cornerInset(cornerRadius, distance));
    if (area.width() < metrics.diameter + 2 * margin) {
        return;
    }
    const bool atRight = painter->layoutDirection() != Qt::RightToLeft;
    const qreal x = atRight ? area.right() - margin - metrics.diameter : area.left() + margin;
    const QPointF origin(x, area.top() + std::floor(distance));
    paintMark(metrics, origin, toGrid.inverted(), color, painter);
}

} // namespace TARN::Helpers
