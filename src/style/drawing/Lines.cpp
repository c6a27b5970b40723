#include "style/drawing/Lines.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

namespace TARN {

namespace {

/// Returns the edge of \a rect that is \a thickness wide.
QRectF edgeOf(const QRectF &rect, Qt::Edge edge, const QSizeF &thickness)
{
    switch (edge) {
    case Qt::TopEdge:
        return {rect.left(), rect.top(), rect.width(), thickness.height()};
    case Qt::LeftEdge:
        return {rect.left(), rect.top(), thickness.width(), rect.height()};
    case Qt::RightEdge:
        return {rect.right() - thickness.width(), rect.top(), thickness.width(), rect.height()};
    case Qt::BottomEdge:
        return {rect.left(), rect.bottom() - thickness.height(), rect.width(), thickness.height()};
    }
    return {};
}

/// How long dashes are, and how far they are apart.
constexpr int dashLength = 3;
/// A line of so many dashes is longer than any screen.
constexpr int mostDashes = 4096;

/// Tells whether units of the painter are larger or smaller than pixels of the device, but neither
/// turned nor mirrored.
bool isScaled(const QTransform &transform)
{
    return transform.type() == QTransform::TxScale && transform.m11() > 0 && transform.m22() > 0;
}

/// Returns the whole pixels of the device that \a rect comes closest to.
QRectF pixelsOf(const QTransform &transform, const QRectF &rect)
{
    const QRectF onDevice = transform.mapRect(rect);
    return {QPointF(std::round(onDevice.left()), std::round(onDevice.top())),
            QPointF(std::round(onDevice.right()), std::round(onDevice.bottom()))};
}

/// Returns \a pixels of the device in units of the painter.
QRectF unitsOf(const QTransform &transform, const QRectF &pixels)
{
    return {(pixels.left() - transform.dx()) / transform.m11(),
            (pixels.top() - transform.dy()) / transform.m22(), pixels.width() / transform.m11(),
            pixels.height() / transform.m22()};
}

/// Returns the edge of \a rect that covers whole pixels of the device of \a painter.
QRectF edgeOnPixels(const QPainter &painter, const QRect &rect, Qt::Edge edge, Line line)
{
    const QTransform &transform = painter.deviceTransform();
    if (!isScaled(transform) || line == Line::Exact) {
        return edgeOf(rect, edge, QSizeF(1, 1));
    }
    const auto pixels = [line](qreal scale) {
        return line == Line::Hairline ? 1.0 : std::max(1.0, std::floor(scale));
    };
    return unitsOf(transform, edgeOf(pixelsOf(transform, rect), edge,
                                     QSizeF(pixels(transform.m11()), pixels(transform.m22()))));
}

} // namespace

void fillEdge(QPainter &painter, const QRect &rect, Qt::Edge edge, const QBrush &brush, Line line)
{
    if (!rect.isEmpty()) {
        painter.fillRect(edgeOnPixels(painter, rect, edge, line), brush);
    }
}

void fillFrame(QPainter &painter, const QRect &rect, const QBrush &brush, Line line)
{
    fillEdge(painter, rect, Qt::TopEdge, brush, line);
    fillEdge(painter, rect, Qt::BottomEdge, brush, line);
    // The corners belong to the lines above, which matters to translucent brushes. Where lines are
    // not as wide as the painter's unit, that would leave gaps.
    const bool isScaled = painter.deviceTransform().type() > QTransform::TxTranslate;
    const QRect between = isScaled ? rect : rect.adjusted(0, 1, 0, -1);
    fillEdge(painter, between, Qt::LeftEdge, brush, line);
    fillEdge(painter, between, Qt::RightEdge, brush, line);
}

void fillOnPixels(QPainter &painter, const QRectF &rect, const QBrush &brush)
{
    const QTransform &transform = painter.deviceTransform();
    painter.fillRect(isScaled(transform) ? unitsOf(transform, pixelsOf(transform, rect)) : rect,
                     brush);
}

void drawDashes(QPainter &painter, const QRect &rect, Qt::Orientation orientation,
                const QBrush &brush)
{
    if (rect.isEmpty()) {
        return;
    }
    const bool isHorizontal = orientation == Qt::Horizontal;
    const int length = isHorizontal ? rect.width() : rect.height();
    const QPoint step = isHorizontal ? QPoint(1, 0) : QPoint(0, 1);
    const QPoint start(rect.left() + (isHorizontal ? 0 : (rect.width() - 1) / 2),
                       rect.top() + (isHorizontal ? (rect.height() - 1) / 2 : 0));
    // What is left over lies at both ends, so that both look alike.
    const int count = std::min((length + dashLength) / (2 * dashLength), mostDashes);
    const int rest = (length - (2 * count - 1) * dashLength) / 2;
    const QSize dash = isHorizontal ? QSize(dashLength, 1) : QSize(1, dashLength);
    for (int i = 0; i < count; ++i) {
        const QRect place(start + step * (rest + 2 * dashLength * i), dash);
        fillEdge(painter, place, isHorizontal ? Qt::TopEdge : Qt::LeftEdge, brush);
    }
}

} // namespace TARN
