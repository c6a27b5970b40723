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

/// Returns the edge of \a rect that covers whole pixels of the device of \a painter.
QRectF edgeOnPixels(const QPainter &painter, const QRect &rect, Qt::Edge edge, Line line)
{
    const QTransform &transform = painter.deviceTransform();
    const bool isScaled = transform.type() == QTransform::TxScale;
    if (!isScaled || line == Line::Exact || transform.m11() <= 0 || transform.m22() <= 0) {
        return edgeOf(rect, edge, QSizeF(1, 1));
    }
    const QRectF onDevice = transform.mapRect(QRectF(rect));
    const QPointF topLeft(std::round(onDevice.left()), std::round(onDevice.top()));
    const QPointF bottomRight(std::round(onDevice.right()), std::round(onDevice.bottom()));
    const auto pixels = [line](qreal scale) {
        return line == Line::Hairline ? 1.0 : std::max(1.0, std::floor(scale));
    };
    const QRectF onPixels = edgeOf(QRectF(topLeft, bottomRight), edge,
                                   QSizeF(pixels(transform.m11()), pixels(transform.m22())));
    return {(onPixels.left() - transform.dx()) / transform.m11(),
            (onPixels.top() - transform.dy()) / transform.m22(), onPixels.width() / transform.m11(),
            onPixels.height() / transform.m22()};
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

} // namespace TARN
