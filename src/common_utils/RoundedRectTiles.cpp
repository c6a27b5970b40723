#include "common_utils/RoundedRectTiles.h"

#include "common_utils/RoundedRectOutline.h"

#include <QtCore/QCache>
#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>

#include <cmath>
#include <memory>
#include <optional>
#include <utility>

namespace TARN {

namespace {

/// Enough for all shapes of a few windows at once.
constexpr int tileBytes = 2 * 1024 * 1024;

/// Shapes up to this many device pixels high, as most widgets are, are kept in their full height:
/// fewer pieces are to be drawn then.
constexpr int highestWholeTile = 96;

/// Shapes of up to that many pixels, as small buttons and marks are, are kept whole.
constexpr int largestWholeArea = 1280;

/// A larger radius is rare, and its corners would be no less work than its outline.
constexpr qreal largestRadius = 64;

/// What a tile shows; lengths are device pixels.
struct TileKey
{
    QRgb pen;
    QRgb fill;
    qreal radius;
    int rim;       ///< how wide the edges are that are not of the fill's colour
    bool isFilled; ///< whether the rim is the half-covered edge of a fill, not an outline
    int width;
    int height;
    int straightCorners;
};

bool operator==(const TileKey &a, const TileKey &b)
{
    return a.pen == b.pen && a.fill == b.fill && a.radius == b.radius && a.rim == b.rim &&
           a.isFilled == b.isFilled && a.width == b.width && a.height == b.height &&
           a.straightCorners == b.straightCorners;
}

uint qHash(const TileKey &key, uint seed)
{
    const quint64 colors = quint64(key.pen) << 32U | key.fill;
    const quint64 size = quint64(key.width) << 32U | quint64(key.height);
    const quint64 form = quint64(key.radius * 64) << 16U |
                         quint64(2 * key.rim + int(key.isFilled)) << 8U |
                         quint64(key.straightCorners);
    return ::qHash(colors, seed) ^ ::qHash(size * 31 + form, seed);
}

struct Tile
{
    explicit Tile(const TileKey &key);

    void completeStraightCorners(const TileKey &key);

    QImage picture;
    QBrush edge; ///< of the outline where it is straight
    QBrush fill; ///< filling with a brush is faster than with a colour
};

Tile::Tile(const TileKey &key)
    : picture(key.width, key.height, QImage::Format_ARGB32_Premultiplied)
    , fill(QColor::fromRgba(key.fill))
{
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    if (key.rim > 0 && !key.isFilled) {
        painter.setPen(
            QPen(QColor::fromRgba(key.pen), key.rim, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    } else {
        painter.setPen(Qt::NoPen);
    }
    painter.setBrush(fill);
    const qreal inset = key.rim / 2.0;
    drawOutline(QRectF(picture.rect()).adjusted(inset, inset, -inset, -inset), key.radius,
                Helpers::StraightCornerFlags(key.straightCorners), painter);
    painter.end();
    edge = QBrush(picture.pixelColor(key.width / 2, 0));
    if (!key.isFilled) {
        completeStraightCorners(key);
    }
}

/// The rasteriser leaves the outermost pixels of mitred corners faint.
void Tile::completeStraightCorners(const TileKey &key)
{
    const int right = key.width - key.rim;
    const int bottom = key.height - key.rim;
    const std::pair<int, QPoint> corners[] = {{Helpers::StraightTopLeft, {0, 0}},
                                              {Helpers::StraightTopRight, {right, 0}},
                                              {Helpers::StraightBottomRight, {right, bottom}},
                                              {Helpers::StraightBottomLeft, {0, bottom}}};
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (const auto &[flag, position] : corners) {
        if (key.radius <= 0 || (key.straightCorners & flag) != 0) {
            painter.fillRect(QRect(position, QSize(key.rim, key.rim)), edge);
        }
    }
}

std::shared_ptr<const Tile> keptTile(const TileKey &key)
{
    static QCache<TileKey, std::shared_ptr<const Tile>> tiles(tileBytes);
    if (const auto *kept = tiles.object(key)) {
        return *kept;
    }
    auto tile = std::make_shared<const Tile>(key);
    tiles.insert(key, new std::shared_ptr<const Tile>(tile), int(tile->picture.sizeInBytes()));
    return tile;
}

bool isPlain(const QBrush &brush)
{
    return brush.style() == Qt::NoBrush || brush.style() == Qt::SolidPattern;
}

bool isPlain(const QPen &pen)
{
    if (pen.style() == Qt::NoPen) {
        return true;
    }
    return pen.style() == Qt::SolidLine && pen.widthF() == 1 && !pen.isCosmetic() &&
           pen.brush().style() == Qt::SolidPattern;
}

/// Tells whether the corners look as those of a tile: smooth round ones, mitred straight ones.
bool hasTileCorners(const QPainter &painter, qreal radius, Helpers::StraightCornerFlags straight)
{
    const bool isMitred =
        painter.pen().style() == Qt::NoPen || painter.pen().joinStyle() == Qt::MiterJoin;
    const bool hasRound = radius > 0;
    const bool hasStraight = !hasRound || straight;
    return (!hasRound || painter.testRenderHint(QPainter::Antialiasing)) &&
           (!hasStraight || isMitred);
}

bool paintsPlainColors(const QPainter &painter)
{
    const QPaintEngine *engine = painter.paintEngine();
    return engine && engine->type() == QPaintEngine::Raster &&
           painter.compositionMode() == QPainter::CompositionMode_SourceOver &&
           isPlain(painter.pen()) && isPlain(painter.brush());
}

bool isWhole(qreal coordinate)
{
    return coordinate == std::floor(coordinate);
}

bool isWhole(const QRectF &rect)
{
    return isWhole(rect.left()) && isWhole(rect.top()) && isWhole(rect.width()) &&
           isWhole(rect.height());
}

/// The pixels of the device that a shape covers.
struct Placement
{
    QRect rect;
    int rim;
    bool isFilled;
};

QRect nearestPixels(const QRectF &device)
{
    const QPoint topLeft(qRound(device.left()), qRound(device.top()));
    return {topLeft,
            QSize(qRound(device.right()) - topLeft.x(), qRound(device.bottom()) - topLeft.y())};
}

/// Places an outline of one device-independent pixel, which the device has in whole pixels.
std::optional<Placement> placeOutline(const QRectF &rect, const QTransform &transform)
{
    const QRectF outer = rect.adjusted(-0.5, -0.5, 0.5, 0.5);
    if (!isWhole(outer)) {
        return std::nullopt;
    }
    return Placement{nearestPixels(transform.mapRect(outer)), qMax(1, int(transform.m11())), false};
}

std::optional<Placement> placeFill(const QRectF &rect, const QTransform &transform)
{
    const QRectF device = transform.mapRect(rect);
    if (isWhole(rect) || isWhole(device)) {
        return Placement{nearestPixels(device), 0, true};
    }
    const QRectF outer = device.adjusted(-0.5, -0.5, 0.5, 0.5);
    if (!isWhole(outer)) {
        return std::nullopt;
    }
    return Placement{nearestPixels(outer), 1, true};
}

bool isSmall(const QSize &size)
{
    return size.height() <= highestWholeTile &&
           qint64(size.width()) * size.height() <= largestWholeArea;
}

/// A shape in device pixels, and how it is put together.
class TiledShape
{
public:
    TiledShape(const Placement &placement, qreal radius, QPainter &painter);

    bool fits() const { return m_radius <= largestRadius && !m_rect.isEmpty(); }
    void draw(Helpers::StraightCornerFlags straightCorners);

private:
    TileKey key(Helpers::StraightCornerFlags straightCorners) const;
    void drawCorners(const QImage &picture) const;
    void drawEdges(const QBrush &brush) const;
    void fillInside(const QBrush &brush) const;
    void fill(int left, int top, int width, int height, const QBrush &brush) const;
    void copy(const QPoint &to, const QImage &picture, const QRect &from) const;
    QRectF toPainter(const QRectF &device) const;

    QPainter &m_painter;
    QRect m_rect;
    qreal m_scale;
    int m_rim;
    bool m_isFilled;
    qreal m_radius;
    int m_corner;     ///< how far the corners reach
    bool m_stretched; ///< whether the middle of the shape's width is not in the tile
    bool m_tall;      ///< the same for its height
};

TiledShape::TiledShape(const Placement &placement, qreal radius, QPainter &painter)
    : m_painter(painter)
    , m_rect(placement.rect)
    , m_scale(painter.deviceTransform().m11())
    , m_rim(placement.rim)
    , m_isFilled(placement.isFilled)
    , m_radius(qMin(radius * m_scale, (qMin(m_rect.width(), m_rect.height()) - m_rim) / 2.0))
    // Square corners are as large as the rim is wide.
    , m_corner(qMax(m_rim, int(std::ceil(m_radius + m_rim / 2.0))))
    , m_stretched(m_rect.width() > 2 * m_corner && !isSmall(m_rect.size()))
    , m_tall(m_rect.height() > qMax(highestWholeTile, 2 * m_corner))
{
}

TileKey TiledShape::key(Helpers::StraightCornerFlags straightCorners) const
{
    const QBrush &brush = m_painter.brush();
    return {m_rim > 0 && !m_isFilled ? m_painter.pen().color().rgba() : 0,
            brush.style() == Qt::NoBrush ? 0 : brush.color().rgba(),
            m_radius,
            m_rim,
            m_isFilled,
            m_stretched ? 2 * m_corner + 1 : m_rect.width(),
            m_tall ? 2 * m_corner + 1 : m_rect.height(),
            int(straightCorners)};
}

void TiledShape::draw(Helpers::StraightCornerFlags straightCorners)
{
    const std::shared_ptr<const Tile> tile = keptTile(key(straightCorners));
    const bool antialiased = m_painter.testRenderHint(QPainter::Antialiasing);
    // All edges lie on whole pixels.
    m_painter.setRenderHint(QPainter::Antialiasing, false);
    drawCorners(tile->picture);
    if (m_rim > 0) {
        drawEdges(tile->edge);
    }
    if (tile->fill.color().alpha() > 0) {
        fillInside(tile->fill);
    }
    m_painter.setRenderHint(QPainter::Antialiasing, antialiased);
}

void TiledShape::drawCorners(const QImage &picture) const
{
    const int width = m_stretched ? m_corner : picture.width();
    const int height = m_tall ? m_corner : picture.height();
    const QSize size(width, height);
    const QPoint last(picture.width() - width, picture.height() - height);
    const QPoint moved(m_rect.width() - width, m_rect.height() - height);
    copy({0, 0}, picture, QRect(QPoint(0, 0), size));
    if (m_stretched) {
        copy({moved.x(), 0}, picture, QRect(QPoint(last.x(), 0), size));
    }
    if (m_tall) {
        copy({0, moved.y()}, picture, QRect(QPoint(0, last.y()), size));
    }
    if (m_stretched && m_tall) {
        copy(moved, picture, QRect(last, size));
    }
}

void TiledShape::drawEdges(const QBrush &brush) const
{
    const int bottom = m_rect.height() - m_rim;
    const int right = m_rect.width() - m_rim;
    if (m_stretched) {
        const int length = m_rect.width() - 2 * m_corner;
        fill(m_corner, 0, length, m_rim, brush);
        fill(m_corner, bottom, length, m_rim, brush);
    }
    if (m_tall) {
        const int length = m_rect.height() - 2 * m_corner;
        fill(0, m_corner, m_rim, length, brush);
        fill(right, m_corner, m_rim, length, brush);
    }
}

void TiledShape::fillInside(const QBrush &brush) const
{
    const int innerWidth = m_rect.width() - 2 * m_rim;
    if (!m_tall) {
        if (m_stretched) {
            fill(m_corner, m_rim, m_rect.width() - 2 * m_corner, m_rect.height() - 2 * m_rim,
                 brush);
        }
        return;
    }
    if (m_stretched) {
        const int length = m_rect.width() - 2 * m_corner;
        const int rest = m_corner - m_rim;
        fill(m_corner, m_rim, length, rest, brush);
        fill(m_corner, m_rect.height() - m_corner, length, rest, brush);
    }
    fill(m_rim, m_corner, innerWidth, m_rect.height() - 2 * m_corner, brush);
}

void TiledShape::fill(int left, int top, int width, int height, const QBrush &brush) const
{
    if (width > 0 && height > 0) {
        m_painter.fillRect(toPainter(QRect(m_rect.x() + left, m_rect.y() + top, width, height)),
                           brush);
    }
}

void TiledShape::copy(const QPoint &to, const QImage &picture, const QRect &from) const
{
    m_painter.drawImage(toPainter(QRect(m_rect.topLeft() + to, from.size())), picture,
                        QRectF(from));
}

QRectF TiledShape::toPainter(const QRectF &device) const
{
    const QTransform &transform = m_painter.deviceTransform();
    return {(device.x() - transform.dx()) / m_scale, (device.y() - transform.dy()) / m_scale,
            device.width() / m_scale, device.height() / m_scale};
}

} // namespace

bool drawFromTile(const QRectF &rect, qreal radius, Helpers::StraightCornerFlags straightCorners,
                  QPainter &painter)
{
    const QTransform &transform = painter.deviceTransform();
    if (transform.type() > QTransform::TxScale || transform.m11() <= 0 ||
        transform.m11() != transform.m22() || !paintsPlainColors(painter) ||
        !hasTileCorners(painter, radius, straightCorners)) {
        return false;
    }
    const bool hasPen = painter.pen().style() != Qt::NoPen;
    const std::optional<Placement> placement =
        hasPen ? placeOutline(rect, transform) : placeFill(rect, transform);
    // The inner row of a wide translucent line lies on the fill, the outer one does not.
    if (!placement || (placement->rim > 1 && painter.pen().color().alpha() < 255)) {
        return false;
    }
    TiledShape shape(*placement, radius, painter);
    if (!shape.fits()) {
        return false;
    }
    shape.draw(straightCorners);
    return true;
}

} // namespace TARN
