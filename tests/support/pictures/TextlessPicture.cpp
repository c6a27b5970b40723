#include "support/pictures/TextlessPicture.h"

#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtWidgets/QWidget>

#include <optional>

namespace {

/// Draws on a picture what it is asked to draw, but for texts.
class TextlessEngine : public QPaintEngine
{
public:
    // With every feature, since the painter would break up what the engine has not.
    explicit TextlessEngine(QImage &picture)
        : QPaintEngine(AllFeatures)
        , m_painter(&picture)
    {
    }

    Type type() const override { return User; }
    bool begin(QPaintDevice * /*device*/) override { return true; }
    bool end() override { return true; }

    void updateState(const QPaintEngineState &next) override;

    void drawRects(const QRectF *rects, int count) override { painter().drawRects(rects, count); }
    void drawLines(const QLineF *lines, int count) override { painter().drawLines(lines, count); }
    void drawPoints(const QPointF *points, int count) override
    {
        painter().drawPoints(points, count);
    }
    void drawEllipse(const QRectF &rect) override { painter().drawEllipse(rect); }
    void drawPath(const QPainterPath &path) override { painter().drawPath(path); }
    void drawPolygon(const QPointF *points, int count, PolygonDrawMode mode) override;
    void drawPixmap(const QRectF &rect, const QPixmap &pixmap, const QRectF &source) override
    {
        painter().drawPixmap(rect, pixmap, source);
    }
    void drawImage(const QRectF &rect, const QImage &image, const QRectF &source,
                   Qt::ImageConversionFlags flags) override
    {
        painter().drawImage(rect, image, source, flags);
    }
    void drawTiledPixmap(const QRectF &rect, const QPixmap &pixmap, const QPointF &offset) override
    {
        painter().drawTiledPixmap(rect, pixmap, offset);
    }
    void drawTextItem(const QPointF & /*position*/, const QTextItem & /*item*/) override {}

private:
    QPainter &painter();
    void updateClip(const QPaintEngineState &next);
    void clip(const QPainterPath &path, Qt::ClipOperation operation);
    void applyClip();

    QPainter m_painter;
    // In pixels: what is clipped by whoever paints, and the widget that is painted, of which the
    // engine is not told when it is another one.
    std::optional<QPainterPath> m_clip;
    bool m_isClipped = false;
    QRegion m_widget;
};

/// Returns what draws on the picture, inside of the widget that is painted.
QPainter &TextlessEngine::painter()
{
    if (systemClip() != m_widget) {
        applyClip();
    }
    return m_painter;
}

void TextlessEngine::applyClip()
{
    m_widget = systemClip();
    const QTransform transform = m_painter.transform();
    m_painter.resetTransform();
    m_painter.setClipping(false);
    if (!m_widget.isEmpty()) {
        m_painter.setClipRegion(m_widget);
    }
    if (m_isClipped && m_clip) {
        m_painter.setClipPath(*m_clip, m_widget.isEmpty() ? Qt::ReplaceClip : Qt::IntersectClip);
    }
    m_painter.setTransform(transform);
}

void TextlessEngine::clip(const QPainterPath &path, Qt::ClipOperation operation)
{
    m_isClipped = operation != Qt::NoClip;
    if (operation == Qt::NoClip) {
        m_clip.reset();
    } else if (operation == Qt::IntersectClip && m_clip) {
        m_clip = m_clip->intersected(path);
    } else {
        m_clip = path;
    }
}

void TextlessEngine::updateClip(const QPaintEngineState &next)
{
    const DirtyFlags dirty = next.state();
    if (dirty & DirtyClipRegion) {
        QPainterPath path;
        path.addRegion(next.clipRegion());
        clip(next.transform().map(path), next.clipOperation());
    }
    if (dirty & DirtyClipPath) {
        clip(next.transform().map(next.clipPath()), next.clipOperation());
    }
    if (dirty & DirtyClipEnabled) {
        m_isClipped = next.isClipEnabled();
    }
    applyClip();
}

void TextlessEngine::updateState(const QPaintEngineState &next)
{
    const DirtyFlags dirty = next.state();
    if (dirty & DirtyTransform) {
        m_painter.setTransform(next.transform());
    }
    if (dirty & (DirtyClipRegion | DirtyClipPath | DirtyClipEnabled)) {
        updateClip(next);
    }
    if (dirty & DirtyPen) {
        m_painter.setPen(next.pen());
    }
    if (dirty & DirtyBrush) {
        m_painter.setBrush(next.brush());
    }
    if (dirty & DirtyBrushOrigin) {
        m_painter.setBrushOrigin(next.brushOrigin());
    }
    if (dirty & DirtyBackground) {
        m_painter.setBackground(next.backgroundBrush());
    }
    if (dirty & DirtyBackgroundMode) {
        m_painter.setBackgroundMode(next.backgroundMode());
    }
    if (dirty & DirtyOpacity) {
        m_painter.setOpacity(next.opacity());
    }
    if (dirty & DirtyCompositionMode) {
        m_painter.setCompositionMode(next.compositionMode());
    }
    if (dirty & DirtyHints) {
        m_painter.setRenderHints(m_painter.renderHints(), false);
        m_painter.setRenderHints(next.renderHints());
    }
}

void TextlessEngine::drawPolygon(const QPointF *points, int count, PolygonDrawMode mode)
{
    switch (mode) {
    case PolylineMode:
        painter().drawPolyline(points, count);
        break;
    case ConvexMode:
        painter().drawConvexPolygon(points, count);
        break;
    case OddEvenMode:
        painter().drawPolygon(points, count, Qt::OddEvenFill);
        break;
    case WindingMode:
        painter().drawPolygon(points, count, Qt::WindingFill);
        break;
    }
}

class TextlessDevice : public QPaintDevice
{
public:
    TextlessDevice(const QWidget &widget, QImage &picture)
        : m_widget(widget)
        , m_picture(picture)
        , m_engine(picture)
    {
    }

    QPaintEngine *paintEngine() const override { return &m_engine; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return m_picture.width();
        case PdmHeight:
            return m_picture.height();
        case PdmDepth:
            return m_picture.depth();
        case PdmDpiX:
        case PdmPhysicalDpiX:
            return m_widget.logicalDpiX();
        case PdmDpiY:
        case PdmPhysicalDpiY:
            return m_widget.logicalDpiY();
        case PdmDevicePixelRatio:
            return m_widget.devicePixelRatio();
        case PdmDevicePixelRatioScaled:
            return int(m_widget.devicePixelRatioF() * devicePixelRatioFScale());
        default:
            return QPaintDevice::metric(metric);
        }
    }

private:
    const QWidget &m_widget;
    QImage &m_picture;
    mutable TextlessEngine m_engine;
};

} // namespace

QImage textlessPicture(QWidget &widget)
{
    QImage picture(widget.size() * widget.devicePixelRatioF(), QImage::Format_RGB32);
    picture.fill(Qt::magenta);
    TextlessDevice device(widget, picture);
    widget.render(&device);
    return picture;
}
