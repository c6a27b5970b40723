#include "samples/SamplePictures.h"

#include <QtCore/QRandomGenerator>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>

namespace TARN::Gallery {

namespace {

constexpr int CellCount = 26;

QPixmap emptyPixmap(const QSize &size)
{
    const qreal ratio = qGuiApp->devicePixelRatio();
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

void paintCell(QPainter *painter, const QPointF &center, qreal radius, int hue)
{
    QRadialGradient body(center, radius);
    body.setColorAt(0.0, QColor::fromHsv(hue, 130, 235, 230));
    body.setColorAt(0.7, QColor::fromHsv(hue, 180, 170, 170));
    body.setColorAt(1.0, QColor::fromHsv(hue, 200, 90, 0));
    painter->setBrush(body);
    painter->drawEllipse(center, radius, radius * 0.9);
    painter->setBrush(QColor::fromHsv((hue + 150) % 360, 190, 220, 200));
    painter->drawEllipse(center, radius * 0.3, radius * 0.28);
}

} // namespace

QPixmap micrograph(const QSize &size, quint32 seed)
{
    QPixmap pixmap = emptyPixmap(size);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRect(QPoint(), size), QColor(14, 20, 32));
    painter.setPen(Qt::NoPen);

    QRandomGenerator random(seed);
    const qreal unit = qMin(size.width(), size.height()) / 10.0;
    const int hue = random.bounded(360);
    for (int i = 0; i < CellCount; ++i) {
        const qreal x = random.generateDouble() * size.width();
        const qreal y = random.generateDouble() * size.height();
        const qreal radius = unit * (0.6 + random.generateDouble());
        paintCell(&painter, {x, y}, radius, (hue + random.bounded(40)) % 360);
    }
    return pixmap;
}

QPixmap swatch(const QColor &color, int extent)
{
    QPixmap pixmap = emptyPixmap({extent, extent});
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(QRectF(1, 1, extent - 2, extent - 2), 3, 3);
    return pixmap;
}

} // namespace TARN::Gallery
