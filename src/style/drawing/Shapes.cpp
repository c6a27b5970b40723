#include "style/drawing/Shapes.h"

#include "resources/ThemeResources.h"
#include "resources/kept/KeptValue.h"
#include "resources/kept/SlotCache.h"

#include <QtGui/QPainter>

#include <array>

namespace TARN {

namespace {

constexpr int cornerSizeCount = 4;

std::array<int, cornerSizeCount> readCornerRadii()
{
    return {int(ThemeResources::getCornerRadius(QStringLiteral("SmallSize"))),
            int(ThemeResources::getCornerRadius(QStringLiteral("BaseSize"))),
            int(ThemeResources::getCornerRadius(QStringLiteral("MediumSize"))),
            int(ThemeResources::getCornerRadius(QStringLiteral("LargeSize")))};
}

QPen makeOutlinePen(const QBrush &brush)
{
    return {brush, 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin};
}

/// The pen of a plain colour.
struct PenKey
{
    QColor color;

    bool operator==(const PenKey &other) const { return color == other.color; }
    std::size_t hash() const { return color.rgba64(); }
};

} // namespace

int cornerRadius(CornerSize size)
{
    static ProcessCached<std::array<int, cornerSizeCount>> radii(readCornerRadii);
    return radii.value().at(static_cast<std::size_t>(size));
}

QRect withinReach(const QRect &rect)
{
    const auto bounded = [](int coordinate) {
        constexpr int farthest = 1 << 24;
        return qBound(-farthest, coordinate, farthest);
    };
    return {QPoint(bounded(rect.left()), bounded(rect.top())),
            QPoint(bounded(rect.right()), bounded(rect.bottom()))};
}

QRectF onHalfPixel(const QRect &rect)
{
    return QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
}

QPen outlinePen(const QBrush &brush)
{
    if (brush.style() != Qt::SolidPattern || brush.color().spec() == QColor::ExtendedRgb) {
        return makeOutlinePen(brush);
    }
    // A pen is allocated, and painting asks for the same few over and over. Nothing outdates them.
    static SlotCache<PenKey, QPen, 61> pens(
        [](const PenKey &key) { return makeOutlinePen(key.color); });
    return pens.value({brush.color()});
}

void drawShape(QPainter &painter, const QRectF &rect, int radius, const QPen &pen,
               const QBrush &brush, Helpers::StraightCornerFlags straightCorners)
{
    painter.setRenderHint(QPainter::Antialiasing, radius > 0);
    painter.setPen(pen);
    painter.setBrush(brush);
    Helpers::drawRoundedRectShape(rect, radius, straightCorners, &painter);
}

} // namespace TARN
