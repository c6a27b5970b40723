#include "style/drawing/Shapes.h"

#include "resources/ThemeResources.h"
#include "resources/kept/ProcessCache.h"

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

/// The pens of the colours that were last used: a pen is allocated, and painting asks for the same
/// few over and over.
class OutlinePens
{
public:
    const QPen &pen(const QBrush &brush)
    {
        const quint64 color = brush.color().rgba64();
        Entry &entry = m_entries.at(color % entryCount);
        if (entry.color != color || entry.pen.style() == Qt::NoPen) {
            entry = {color, makeOutlinePen(brush)};
        }
        return entry.pen;
    }

private:
    struct Entry
    {
        quint64 color = 0;
        QPen pen = QPen(Qt::NoPen);
    };

    static constexpr std::size_t entryCount = 61;

    std::array<Entry, entryCount> m_entries;
};

} // namespace

int cornerRadius(CornerSize size)
{
    static ProcessCached<std::array<int, cornerSizeCount>> radii(readCornerRadii);
    return radii.value().at(static_cast<std::size_t>(size));
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
    static OutlinePens pens;
    return pens.pen(brush);
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
