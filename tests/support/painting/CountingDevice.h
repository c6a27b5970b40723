#pragma once

#include <QtCore/QRectF>
#include <QtGui/QPaintDevice>
#include <QtGui/QPaintEngine>

/// A device on which nothing is seen. It counts the shapes that are drawn on it, so that the work
/// of a painting can be limited without a clock.
class CountingDevice : public QPaintDevice
{
public:
    explicit CountingDevice(const QSize &size)
        : m_size(size)
    {
    }

    /// Returns how many rectangles, lines, polygons, paths, pictures and texts were drawn.
    int shapeCount() const { return m_engine.shapeCount; }
    /// Returns how far from the origin they reach.
    qreal reach() const { return m_engine.reach; }

    QPaintEngine *paintEngine() const override { return &m_engine; }

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine : public QPaintEngine
    {
    public:
        Engine();

        bool begin(QPaintDevice *device) override;
        bool end() override;
        Type type() const override;
        void updateState(const QPaintEngineState &state) override;
        void drawRects(const QRectF *rects, int count) override;
        void drawLines(const QLineF *lines, int count) override;
        void drawPath(const QPainterPath &path) override;
        void drawPolygon(const QPointF *points, int count, PolygonDrawMode mode) override;
        void drawPixmap(const QRectF &rect, const QPixmap &pixmap, const QRectF &source) override;
        void drawTextItem(const QPointF &position, const QTextItem &item) override;

        int shapeCount = 0;
        qreal reach = 0;

    private:
        void count(const QRectF &rect);
    };

    QSize m_size;
    mutable Engine m_engine;
};
