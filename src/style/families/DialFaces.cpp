#include "style/families/DialFaces.h"

#include "resources/kept/SlotCache.h"
#include "style/drawing/Pictures.h"
#include "style/families/SliderParts.h"

#include <QtCore/QLineF>
#include <QtCore/QVarLengthArray>
#include <QtCore/QtMath>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <cmath>

namespace TARN::Dials {

namespace {

// A dial turns clockwise in every language: that is how the toolkit reads the mouse.
// Angles are in degrees, counter-clockwise from three o'clock.
constexpr qreal openStart = 240;
constexpr qreal openSweep = 300;
constexpr qreal wrappingStart = 270;
constexpr qreal wrappingSweep = 360;

/// Keeps the dial clear of the line that shows the focus.
constexpr int margin = 2;

/// Pictures of larger dials are not kept.
constexpr qreal largestPicture = 256;

qreal outerRadius(const FaceShape &shape)
{
    return shape.side / 2.0 - margin;
}

/// Returns the radius of the circle on which the handle moves.
qreal handleRadius(const FaceShape &shape)
{
    return outerRadius(shape) - shape.notchRoom - shape.handleExtent / 2.0;
}

qreal angleOf(const FaceShape &shape, qreal share)
{
    return shape.isWrapping ? wrappingStart - wrappingSweep * share : openStart - openSweep * share;
}

QPointF pointAt(const QPointF &center, qreal angle, qreal radius)
{
    const qreal radians = qDegreesToRadians(angle);
    return center + QPointF(radius * qCos(radians), -radius * qSin(radians));
}

/// Draws the part of the groove between two shares of the way.
void drawArc(QPainter &painter, const QPointF &center, const FaceShape &shape, const QBrush &brush,
             qreal from, qreal to)
{
    if (brush.style() == Qt::NoBrush) {
        return;
    }
    constexpr int unitsPerDegree = 16;
    const qreal radius = handleRadius(shape);
    const QRectF circle(center - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius));
    const qreal start = angleOf(shape, from);
    painter.setPen(QPen(brush, shape.grooveWidth, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(circle, qRound(start * unitsPerDegree),
                    qRound((angleOf(shape, to) - start) * unitsPerDegree));
}

void drawNotches(QPainter &painter, const QPointF &center, const Face &face)
{
    if (face.notches.style() == Qt::NoBrush) {
        return;
    }
    const FaceShape &shape = face.shape;
    const qreal inner = handleRadius(shape) + shape.handleExtent / 2.0 + Sliders::tickGap;
    // The last one of a dial that goes round and round is where the first one is.
    const qint64 last = shape.isWrapping && face.range > 0 ? face.range - 1 : face.range;
    QVarLengthArray<QLineF, 64> notches;
    for (qint64 step = 0; step <= last; step += face.interval) {
        const qreal share = face.range > 0 ? qreal(step) / qreal(face.range) : 0.5;
        const qreal angle = angleOf(shape, share);
        notches.append({pointAt(center, angle, inner), pointAt(center, angle, outerRadius(shape))});
    }
    painter.setPen(QPen(face.notches, 1, Qt::SolidLine, Qt::FlatCap));
    painter.drawLines(notches.constData(), notches.size());
}

void draw(QPainter &painter, const QPointF &center, const Face &face)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    drawArc(painter, center, face.shape, face.groove, 0, 1);
    drawArc(painter, center, face.shape, face.filled, face.filledFrom, face.filledTo);
    drawNotches(painter, center, face);
}

/// A face in plain colours.
struct PictureKey
{
    Face face;
    qreal scale;

    bool operator==(const PictureKey &other) const
    {
        return scale == other.scale && face.shape == other.face.shape &&
               face.groove == other.face.groove && face.filled == other.face.filled &&
               face.filledFrom == other.face.filledFrom && face.filledTo == other.face.filledTo &&
               face.notches == other.face.notches && face.range == other.face.range &&
               face.interval == other.face.interval;
    }
    std::size_t hash() const
    {
        return mixedHash({std::size_t(face.shape.side), std::size_t(face.filledTo * 4096),
                          face.groove.color().rgba(), face.notches.color().rgba()});
    }
};

QImage makePicture(const PictureKey &key)
{
    const int side = key.face.shape.side;
    const int pixels = qCeil(side * key.scale);
    QImage picture(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.scale(key.scale, key.scale);
    draw(painter, QPointF(side, side) / 2, key.face);
    return picture;
}

bool isPlain(const QBrush &brush)
{
    return brush.style() == Qt::NoBrush || isPlainColor(brush);
}

/// Tells whether the corner of the face lies on a pixel, as that of its picture does.
bool hasPicture(const QPainter &painter, const QPointF &corner, const Face &face, qreal scale)
{
    const QPointF onDevice = painter.deviceTransform().map(corner);
    return scale > 0 && face.shape.side * scale <= largestPicture &&
           onDevice.x() == std::floor(onDevice.x()) && onDevice.y() == std::floor(onDevice.y()) &&
           isPlain(face.groove) && isPlain(face.filled) && isPlain(face.notches);
}

} // namespace

bool FaceShape::operator==(const FaceShape &other) const
{
    return side == other.side && handleExtent == other.handleExtent &&
           grooveWidth == other.grooveWidth && notchRoom == other.notchRoom &&
           isWrapping == other.isWrapping;
}

int grooveLength(const FaceShape &shape)
{
    return int(qDegreesToRadians(shape.isWrapping ? wrappingSweep : openSweep) *
               handleRadius(shape));
}

QPointF handlePosition(const FaceShape &shape, const QPointF &center, qreal share)
{
    return pointAt(center, angleOf(shape, share), handleRadius(shape));
}

void drawFace(QPainter &painter, const QPointF &center, const Face &face)
{
    const QPointF corner = center - QPointF(face.shape.side, face.shape.side) / 2;
    const qreal scale = pictureScale(painter);
    if (!hasPicture(painter, corner, face, scale)) {
        draw(painter, center, face);
        return;
    }
    static SlotCache<PictureKey, QImage, 7> pictures(makePicture);
    painter.setRenderHint(QPainter::Antialiasing, false);
    copyPicture(painter, corner, QPoint(), pictures.value({face, scale}), scale);
}

} // namespace TARN::Dials
