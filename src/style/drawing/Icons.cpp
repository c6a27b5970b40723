#include "style/drawing/Icons.h"

#include "common_utils/Helpers.h"
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
    const bool isSwitchedOff = !painter.worldMatrixEnabled() && !painter.transform().isIdentity();
    if (transform.type() > QTransform::TxScale || isSwitchedOff) {
        return {};
    }
    const QPointF onDevice = transform.map(point);
    const QPointF offset = QPointF(onDevice.toPoint()) - onDevice;
    return {offset.x() / transform.m11(), offset.y() / transform.m22()};
}

/// Has \a paint paint with \a painter moved by \a offset. Moving it back would not quite undo that.
template <typename Paint>
void paintMoved(QPainter &painter, const QPointF &offset, Paint paint)
{
    if (offset.isNull()) {
        paint();
        return;
    }
    const QTransform former = painter.transform();
    const bool wasTransformed = painter.worldMatrixEnabled();
    painter.translate(offset);
    paint();
    painter.setTransform(former);
    painter.setWorldMatrixEnabled(wasTransformed);
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
    paintMoved(painter, towardsPixel(painter, rect.topLeft()),
               [&] { icon.paint(&painter, rect, Qt::AlignCenter, mode, state); });
}

void drawTintedIcon(QPainter &painter, const QRect &rect, const QIcon &icon, const QBrush &brush)
{
    drawIcon(painter, rect, ThemeColorHelper::getModifiedIconWithForegroundBrush(icon, brush));
}

QIcon iconInBrush(const QIcon &icon, const QBrush &brush)
{
    const QColor inkOnLightGround(0x27, 0x2e, 0x34);
    // The brush is that of the state: nothing has to be dimmed besides.
    const bool isDimmed = true;
    return Helpers::getModifiedIconWithForegroundBrush(
        ThemeColorHelper::getModifiedIconWithForegroundBrush(icon, brush), inkOnLightGround, brush,
        isDimmed);
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
    paintMoved(painter, towardsPixel(painter, target.topLeft()),
               [&] { proxy.drawItemPixmap(&painter, target, Qt::AlignCenter, pixmap); });
}

} // namespace TARN
