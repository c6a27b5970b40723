#include "style/drawing/Icons.h"

#include "common_utils/Helpers.h"
#include "resources/ThemeColorHelper.h"
#include "resources/ThemeResources.h"
#include "resources/kept/KeptValue.h"
#include "resources/kept/SlotCache.h"
#include "style/drawing/Pictures.h"

#include <QtCore/QtMath>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtWidgets/QStyle>
#include <QtWidgets/QWidget>

#include <functional>
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

/// An icon in one colour.
struct PictureKey
{
    const char *name;
    QRgb color;
    int extent;
    qreal scale;

    bool operator==(const PictureKey &other) const
    {
        return name == other.name && color == other.color && extent == other.extent &&
               scale == other.scale;
    }
    std::size_t hash() const
    {
        return mixedHash({std::hash<const char *>()(name), color, std::size_t(extent)});
    }
};

/// What is seen of an icon: the smaller the picture, the sooner it is copied.
struct KeptPicture
{
    QPoint corner; ///< from that of the icon, in pixels
    QImage picture;
};

/// Returns the smallest rectangle that holds all pixels of \a picture which are not transparent.
QRect visibleRect(const QImage &picture)
{
    QRect rect;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qAlpha(picture.pixel(x, y)) != 0) {
                rect |= QRect(x, y, 1, 1);
            }
        }
    }
    return rect;
}

KeptPicture makePicture(const PictureKey &key)
{
    const int pixels = qCeil(key.extent * key.scale);
    QImage picture(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    picture.setDevicePixelRatio(key.scale);
    QPainter painter(&picture);
    drawTintedIcon(painter, QRect(0, 0, key.extent, key.extent), keptIcon(key.name),
                   QColor::fromRgba(key.color));
    painter.end();
    picture.setDevicePixelRatio(1);
    const QRect visible = visibleRect(picture);
    return {visible.topLeft(), picture.copy(visible)};
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

void drawKeptIcon(QPainter &painter, const QRect &rect, const char *name, const QBrush &brush)
{
    const qreal scale = pictureScale(painter);
    // An icon is as fine as its device is, whatever the painter magnifies.
    const bool isMagnified = scale != painter.device()->devicePixelRatioF();
    if (scale <= 0 || isMagnified || !isPlainColor(brush)) {
        drawTintedIcon(painter, rect, keptIcon(name), brush);
        return;
    }
    static SlotCache<PictureKey, KeptPicture, 61, ThemeGeneration> pictures(makePicture);
    const KeptPicture &kept = pictures.value({name, brush.color().rgba(), rect.width(), scale});
    copyPicture(painter, rect.topLeft(), kept.corner, kept.picture, scale);
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
