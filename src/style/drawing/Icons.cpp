#include "style/drawing/Icons.h"

#include "resources/ThemeColorHelper.h"
#include "resources/ThemeResources.h"
#include "resources/kept/KeptValue.h"

#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtWidgets/QStyle>
#include <QtWidgets/QWidget>

#include <unordered_map>

namespace TARN {

namespace {

/// Returns how far \a point is moved onto a whole pixel of the device, in the painter's units.
QPointF towardsPixel(const QPainter &painter, const QPointF &point)
{
    const QTransform &transform = painter.deviceTransform();
    if (transform.type() > QTransform::TxScale) {
        return {};
    }
    const QPointF onDevice = transform.map(point);
    const QPointF offset = QPointF(onDevice.toPoint()) - onDevice;
    return {offset.x() / transform.m11(), offset.y() / transform.m22()};
}

} // namespace

const QIcon &keptIcon(const char *name)
{
    using Icons = std::unordered_map<const char *, QIcon>;
    static ProcessCached<Icons> icons([] { return Icons(); });
    QIcon &icon = icons.value()[name];
    if (icon.isNull()) {
        icon = ThemeResources::getIcon(QString::fromLatin1(name));
    }
    return icon;
}

void drawIcon(QPainter &painter, const QRect &rect, const QIcon &icon, QIcon::Mode mode,
              QIcon::State state)
{
    const QPointF offset = towardsPixel(painter, rect.topLeft());
    if (offset.isNull()) {
        icon.paint(&painter, rect, Qt::AlignCenter, mode, state);
        return;
    }
    painter.translate(offset);
    icon.paint(&painter, rect, Qt::AlignCenter, mode, state);
    painter.translate(-offset);
}

void drawTintedIcon(QPainter &painter, const QRect &rect, const QIcon &icon, const QBrush &brush)
{
    drawIcon(painter, rect, ThemeColorHelper::getModifiedIconWithForegroundBrush(icon, brush));
}

QPixmap iconPixmap(const QIcon &icon, const QSize &size, QIcon::Mode mode, QIcon::State state,
                   const QWidget *widget)
{
    return icon.pixmap(widget ? widget->window()->windowHandle() : nullptr, size, mode, state);
}

QSize sizeOf(const QPixmap &pixmap)
{
    return pixmap.size() / pixmap.devicePixelRatio();
}

void drawItemPixmap(const QStyle &proxy, QPainter &painter, const QRect &rect,
                    const QPixmap &pixmap)
{
    const QRect target =
        QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, sizeOf(pixmap), rect);
    const QPointF offset = towardsPixel(painter, target.topLeft());
    painter.translate(offset);
    proxy.drawItemPixmap(&painter, target, Qt::AlignCenter, pixmap);
    painter.translate(-offset);
}

} // namespace TARN
