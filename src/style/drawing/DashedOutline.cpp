#include "style/drawing/DashedOutline.h"

#include "style/drawing/Pictures.h"

#include <QtCore/QCache>
#include <QtCore/QVector>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <cmath>

namespace TARN {

namespace {

/// There is one focus at a time, and it moves between the widgets of a window.
constexpr int keptBytes = 32 * 1024;

/// How wide and high an outline may be together. To prepare a larger one would take tens of
/// megabytes, and it is rare that a whole window has the focus.
constexpr qreal largestExtent = 4096;

/// One picture of that many pixels is copied faster than four of its edges.
constexpr int largestWholeArea = 4096;

/// How far the square ends of the dashes may reach over the corners, in pixels of the device.
constexpr int margin = 1;

constexpr qreal cornerRadius = 1.0;

void stroke(const QRectF &rect, const QBrush &brush, QPainter &painter)
{
    QPen pen(brush, 0);
    pen.setDashPattern({2, 2});
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius, cornerRadius);
}

struct OutlineKey
{
    QRgb color;
    QSize size;
    qreal scale; ///< pixels of the device to a unit of the painter
};

bool operator==(const OutlineKey &a, const OutlineKey &b)
{
    return a.color == b.color && a.size == b.size && a.scale == b.scale;
}

uint qHash(const OutlineKey &key, uint seed)
{
    const quint64 size = quint64(uint(key.size.width())) << 32U | uint(key.size.height());
    return ::qHash(size, seed) ^ ::qHash(key.color, seed) ^ ::qHash(key.scale, seed);
}

/// Returns what an outline in \a frame touches, in pixels of the device.
QVector<QRect> touchedRects(const QRect &frame, qreal scale)
{
    const QRect outer = frame.adjusted(-margin, -margin, margin, margin);
    const int band = margin + int(std::ceil((cornerRadius + 0.5) * scale)) + 1;
    const bool hasInside = outer.width() > 2 * band && outer.height() > 2 * band;
    if (!hasInside || outer.width() * outer.height() <= largestWholeArea) {
        return {outer};
    }
    const QRect between = outer.adjusted(0, band, 0, -band);
    return {
        QRect(outer.topLeft(), QSize(outer.width(), band)),
        QRect(QPoint(outer.left(), between.bottom() + 1), QSize(outer.width(), band)),
        QRect(between.topLeft(), QSize(band, between.height())),
        QRect(QPoint(between.right() + 1 - band, between.top()), QSize(band, between.height()))};
}

/// The pictures of one outline.
class OutlinePictures
{
public:
    explicit OutlinePictures(const OutlineKey &key)
    {
        const QRectF rect(QPointF(), QSizeF(key.size));
        const QSizeF size = rect.size() * key.scale;
        const QRect frame(0, 0, int(std::ceil(size.width())), int(std::ceil(size.height())));
        // Not stroked part by part: what is clipped away shifts the dashes that follow.
        QImage whole(frame.size() + 2 * QSize(margin, margin), QImage::Format_ARGB32_Premultiplied);
        whole.fill(Qt::transparent);
        QPainter painter(&whole);
        painter.translate(margin, margin);
        painter.scale(key.scale, key.scale);
        stroke(rect, QColor::fromRgba(key.color), painter);
        painter.end();
        for (const QRect &touched : touchedRects(frame, key.scale)) {
            m_parts.push_back({touched.topLeft(), whole.copy(touched.translated(margin, margin))});
        }
    }

    void draw(const QPointF &corner, qreal scale, QPainter &painter) const
    {
        for (const Part &part : m_parts) {
            const QRectF target(corner + QPointF(part.offset) / scale,
                                QSizeF(part.picture.size()) / scale);
            painter.drawImage(target, part.picture, QRectF(part.picture.rect()));
        }
    }

    int bytes() const
    {
        int sum = 0;
        for (const Part &part : m_parts) {
            sum += int(part.picture.sizeInBytes());
        }
        return sum;
    }

private:
    struct Part
    {
        QPoint offset; ///< from the corner of the outline, in pixels of the device
        QImage picture;
    };

    QVector<Part> m_parts;
};

OutlinePictures keptPictures(const OutlineKey &key)
{
    static QCache<OutlineKey, OutlinePictures> kept(keptBytes);
    if (const OutlinePictures *pictures = kept.object(key)) {
        return *pictures;
    }
    OutlinePictures pictures(key);
    kept.insert(key, new OutlinePictures(pictures), pictures.bytes());
    return pictures;
}

/// Tells whether the outline has pictures: wherever it lies, its dashes fall onto the same places.
bool hasPictures(const QRect &rect, const QTransform &transform, qreal scale)
{
    if (scale <= 0 || rect.isEmpty()) {
        return false;
    }
    const QPointF corner = transform.map(QPointF(rect.topLeft()));
    const QSizeF size = QSizeF(rect.size()) * scale;
    return corner.x() == std::floor(corner.x()) && corner.y() == std::floor(corner.y()) &&
           size.width() + size.height() <= largestExtent;
}

} // namespace

void drawDashedOutline(const QRect &rect, const QBrush &brush, QPainter &painter)
{
    const qreal scale = pictureScale(painter);
    if (!isPlainColor(brush) || !hasPictures(rect, painter.deviceTransform(), scale)) {
        stroke(rect, brush, painter);
        return;
    }
    // The pictures are copied pixel by pixel.
    painter.setRenderHint(QPainter::Antialiasing, false);
    keptPictures({brush.color().rgba(), rect.size(), scale})
        .draw(QPointF(rect.topLeft()), scale, painter);
}

} // namespace TARN
