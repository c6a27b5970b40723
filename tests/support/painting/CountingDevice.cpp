#include "support/painting/CountingDevice.h"

#include <QtGui/QPainterPath>
#include <QtGui/QPixmap>
#include <QtGui/QPolygonF>

#include <algorithm>

int CountingDevice::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
        return m_size.width();
    case PdmHeight:
        return m_size.height();
    case PdmDepth:
        return 32;
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return 96;
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return int(devicePixelRatioFScale());
    default:
        return QPaintDevice::metric(metric);
    }
}

// With every feature, since the painter would break up what the device has not.
CountingDevice::Engine::Engine()
    : QPaintEngine(AllFeatures)
{
}

bool CountingDevice::Engine::begin(QPaintDevice * /*device*/)
{
    return true;
}

bool CountingDevice::Engine::end()
{
    return true;
}

QPaintEngine::Type CountingDevice::Engine::type() const
{
    return User;
}

void CountingDevice::Engine::updateState(const QPaintEngineState & /*state*/) {}

void CountingDevice::Engine::drawRects(const QRectF *rects, int count)
{
    std::for_each(rects, rects + count, [this](const QRectF &rect) { this->count(rect); });
}

void CountingDevice::Engine::drawLines(const QLineF *lines, int count)
{
    std::for_each(lines, lines + count,
                  [this](const QLineF &line) { this->count(QRectF(line.p1(), line.p2())); });
}

void CountingDevice::Engine::drawPath(const QPainterPath &path)
{
    count(path.controlPointRect());
}

void CountingDevice::Engine::drawPolygon(const QPointF *points, int count, PolygonDrawMode /*mode*/)
{
    QPolygonF polygon;
    std::copy(points, points + count, std::back_inserter(polygon));
    this->count(polygon.boundingRect());
}

void CountingDevice::Engine::drawPixmap(const QRectF &rect, const QPixmap & /*pixmap*/,
                                        const QRectF & /*source*/)
{
    count(rect);
}

void CountingDevice::Engine::drawTextItem(const QPointF &position, const QTextItem & /*item*/)
{
    count(QRectF(position, position));
}

void CountingDevice::Engine::count(const QRectF &rect)
{
    ++shapeCount;
    for (const qreal edge : {rect.left(), rect.top(), rect.right(), rect.bottom()}) {
        reach = std::max(reach, qAbs(edge));
    }
}
