#include "style/Drawing.h"

#include "resources/ProcessCache.h"
#include "resources/ThemeColorHelper.h"
#include "resources/ThemeResources.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

#include <array>
#include <unordered_map>

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
    return QPen(brush, 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
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

template <typename ButtonOption>
void useForeground(ButtonOption &option, const QBrush &brush)
{
    if (brush.style() == Qt::NoBrush) {
        return;
    }
    const QPalette::ColorGroup group = option.palette.currentColorGroup();
    option.palette.setBrush(group, QPalette::ButtonText, brush);
    option.palette.setBrush(group, QPalette::WindowText, brush);
    if (!option.icon.isNull()) {
        option.icon = ThemeColorHelper::getModifiedIconWithForegroundBrush(option.icon, brush);
    }
}

template void useForeground(QStyleOptionButton &option, const QBrush &brush);
template void useForeground(QStyleOptionToolButton &option, const QBrush &brush);

} // namespace TARN
