#include "style/drawing/Pictures.h"

#include <QtGui/QBrush>
#include <QtGui/QImage>
#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>

namespace TARN {

qreal pictureScale(const QPainter &painter)
{
    const QPaintEngine *engine = painter.paintEngine();
    const QTransform &transform = painter.deviceTransform();
    const bool copies = engine && engine->type() == QPaintEngine::Raster &&
                        painter.compositionMode() == QPainter::CompositionMode_SourceOver &&
                        transform.type() <= QTransform::TxScale &&
                        transform.m11() == transform.m22();
    return copies ? qMax(0.0, transform.m11()) : 0;
}

bool isPlainColor(const QBrush &brush)
{
    return brush.style() == Qt::SolidPattern && brush.color().spec() != QColor::ExtendedRgb;
}

void copyPicture(QPainter &painter, const QPointF &corner, const QPoint &offset,
                 const QImage &picture, qreal scale)
{
    const QTransform &transform = painter.deviceTransform();
    const QPointF onDevice(transform.map(corner).toPoint() + offset);
    const QPointF origin(transform.dx(), transform.dy());
    painter.drawImage(QRectF((onDevice - origin) / scale, QSizeF(picture.size()) / scale), picture,
                      QRectF(picture.rect()));
}

} // namespace TARN
