#include "icons/PathData.h"

#include <QtGui/QImage>
#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

namespace TARN::Artwork {

namespace {

constexpr int Side = 64;

/// Keeps the outlines that are painted.
class OutlineEngine : public QPaintEngine
{
public:
    OutlineEngine()
        : QPaintEngine(AllFeatures)
    {
    }

    bool begin(QPaintDevice * /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState & /*state*/) override {}
    void drawPath(const QPainterPath &path) override { m_outline.addPath(path); }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    [[nodiscard]] Type type() const override { return User; }

    void drawRects(const QRectF *rects, int count) override
    {
        std::for_each(rects, rects + count,
                      [this](const QRectF &rect) { m_outline.addRect(rect); });
    }
    void drawEllipse(const QRectF &rect) override { m_outline.addEllipse(rect); }

    [[nodiscard]] const QPainterPath &outline() const { return m_outline; }

private:
    QPainterPath m_outline;
};

/// An image in name only: it has the metrics that painting asks for, and is never painted on.
class OutlineDevice : public QImage
{
public:
    OutlineDevice()
        : QImage(Side, Side, Format_Mono)
    {
    }

    [[nodiscard]] QPaintEngine *paintEngine() const override { return &m_engine; }
    [[nodiscard]] const QPainterPath &outline() const { return m_engine.outline(); }

private:
    mutable OutlineEngine m_engine;
};

QString point(const QPainterPath::Element &element)
{
    const QString y = shortNumber(element.y);
    const QString separator = y.startsWith(QLatin1Char('-')) ? QString() : QStringLiteral(" ");
    return shortNumber(element.x) + separator + y;
}

} // namespace

QPainterPath pathOf(const QString &element)
{
    const QString document =
        QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%1\" "
                       "height=\"%1\" viewBox=\"0 0 %1 %1\"><%2/></svg>")
            .arg(Side)
            .arg(element);
    QSvgRenderer renderer(document.toUtf8());
    OutlineDevice device;
    QPainter painter(&device);
    renderer.render(&painter);
    painter.end();
    return device.outline();
}

QString shortNumber(double value)
{
    QString text = QString::number(qRound(value * 100) / 100.0, 'g', 6);
    if (text.startsWith(QLatin1String("0."))) {
        text.remove(0, 1);
    } else if (text.startsWith(QLatin1String("-0."))) {
        text.remove(1, 1);
    }
    return text;
}

QString pathData(const QPainterPath &path)
{
    static const QLatin1Char commands[] = {QLatin1Char('M'), QLatin1Char('L'), QLatin1Char('C'),
                                           QLatin1Char(' ')};
    QString data;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        data += commands[element.type] + point(element);
    }
    return data;
}

} // namespace TARN::Artwork
