#include "style/drawing/Drawing.h"

#include "resources/ThemeColorHelper.h"
#include "resources/ThemeResources.h"
#include "resources/kept/ProcessCache.h"
#include "style/BaseStyle.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <unordered_map>
#include <utility>

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

/// Returns the edge of \a rect that is \a thickness wide.
QRectF edgeOf(const QRectF &rect, Qt::Edge edge, const QSizeF &thickness)
{
    switch (edge) {
    case Qt::TopEdge:
        return {rect.left(), rect.top(), rect.width(), thickness.height()};
    case Qt::LeftEdge:
        return {rect.left(), rect.top(), thickness.width(), rect.height()};
    case Qt::RightEdge:
        return {rect.right() - thickness.width(), rect.top(), thickness.width(), rect.height()};
    case Qt::BottomEdge:
        return {rect.left(), rect.bottom() - thickness.height(), rect.width(), thickness.height()};
    }
    return {};
}

/// Returns the edge of \a rect that covers whole pixels of the device of \a painter.
QRectF edgeOnPixels(const QPainter &painter, const QRect &rect, Qt::Edge edge, Line line)
{
    const QTransform &transform = painter.deviceTransform();
    const bool isScaled = transform.type() == QTransform::TxScale;
    if (!isScaled || line == Line::Exact || transform.m11() <= 0 || transform.m22() <= 0) {
        return edgeOf(rect, edge, QSizeF(1, 1));
    }
    const QRectF onDevice = transform.mapRect(QRectF(rect));
    const QPointF topLeft(std::round(onDevice.left()), std::round(onDevice.top()));
    const QPointF bottomRight(std::round(onDevice.right()), std::round(onDevice.bottom()));
    const auto pixels = [line](qreal scale) {
        return line == Line::Hairline ? 1.0 : std::max(1.0, std::floor(scale));
    };
    const QRectF onPixels = edgeOf(QRectF(topLeft, bottomRight), edge,
                                   QSizeF(pixels(transform.m11()), pixels(transform.m22())));
    return {(onPixels.left() - transform.dx()) / transform.m11(),
            (onPixels.top() - transform.dy()) / transform.m22(), onPixels.width() / transform.m11(),
            onPixels.height() / transform.m22()};
}

/// The palettes that were last given a brush.
class ChangedPalettes
{
public:
    QPalette palette(const QPalette &source, QPalette::ColorRole role, const QBrush &brush)
    {
        const std::size_t slot = slotOf(source, role, brush);
        Entry &entry = m_entries.at(slot);
        Entry &former = m_entries.at((slot + 1) % entryCount);
        if (!entry.isFor(source, role, brush)) {
            // Two palettes of one slot would be copied over and over if either drove the other out.
            std::swap(entry, former);
            if (!entry.isFor(source, role, brush)) {
                QPalette changed = source;
                changed.setBrush(source.currentColorGroup(), role, brush);
                entry = {source, role, brush, changed};
            }
        }
        return entry.changed;
    }

private:
    struct Entry
    {
        QPalette source;
        QPalette::ColorRole role = QPalette::NoRole;
        QBrush brush;
        QPalette changed;

        bool isFor(const QPalette &otherSource, QPalette::ColorRole otherRole,
                   const QBrush &otherBrush) const
        {
            return role == otherRole && brush == otherBrush && source.isCopyOf(otherSource) &&
                   source.currentColorGroup() == otherSource.currentColorGroup() &&
                   source.resolve() == otherSource.resolve();
        }
    };

    static constexpr std::size_t entryCount = 127;

    static std::size_t slotOf(const QPalette &source, QPalette::ColorRole role, const QBrush &brush)
    {
        auto key = std::size_t(source.cacheKey());
        for (const unsigned int part :
             {unsigned(source.currentColorGroup()), unsigned(role), brush.color().rgba()}) {
            key = key * 31 + part;
        }
        return key % entryCount;
    }

    std::array<Entry, entryCount> m_entries;
};

/// What a text is elided for.
struct Room
{
    Qt::TextElideMode mode = Qt::ElideNone;
    int width = 0;
    int flags = 0;

    bool operator==(const Room &other) const
    {
        return mode == other.mode && width == other.width && flags == other.flags;
    }
};

/// The texts that were last elided.
class ElidedTexts
{
public:
    ElidedTexts()
    {
        // The same font may now have other glyphs.
        QObject::connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, qGuiApp,
                         [this] { m_entries.fill({}); });
    }

    QString text(const QFontMetrics &metrics, const QString &text, const Room &room)
    {
        const std::size_t slot = (qHash(text) * 31 + uint(room.width)) % entryCount;
        Entry &entry = m_entries.at(slot);
        if (!entry.metrics || *entry.metrics != metrics || entry.text != text ||
            !(entry.room == room)) {
            entry = {metrics, text, room,
                     metrics.elidedText(text, room.mode, room.width, room.flags)};
        }
        return entry.elided;
    }

private:
    struct Entry
    {
        std::optional<QFontMetrics> metrics;
        QString text;
        Room room;
        QString elided;
    };

    static constexpr std::size_t entryCount = 127;

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

void fillEdge(QPainter &painter, const QRect &rect, Qt::Edge edge, const QBrush &brush, Line line)
{
    if (!rect.isEmpty()) {
        painter.fillRect(edgeOnPixels(painter, rect, edge, line), brush);
    }
}

void fillFrame(QPainter &painter, const QRect &rect, const QBrush &brush, Line line)
{
    fillEdge(painter, rect, Qt::TopEdge, brush, line);
    fillEdge(painter, rect, Qt::BottomEdge, brush, line);
    // The corners belong to the lines above, which matters to translucent brushes. Where lines are
    // not as wide as the painter's unit, that would leave gaps.
    const bool isScaled = painter.deviceTransform().type() > QTransform::TxTranslate;
    const QRect between = isScaled ? rect : rect.adjusted(0, 1, 0, -1);
    fillEdge(painter, between, Qt::LeftEdge, brush, line);
    fillEdge(painter, between, Qt::RightEdge, brush, line);
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

QPixmap iconPixmap(const QIcon &icon, const QSize &size, QIcon::Mode mode, QIcon::State state,
                   const QWidget *widget)
{
    return icon.pixmap(widget ? widget->window()->windowHandle() : nullptr, size, mode, state);
}

QSize sizeOf(const QPixmap &pixmap)
{
    return pixmap.size() / pixmap.devicePixelRatio();
}

void drawItemPixmap(const QStyle &style, QPainter &painter, const QRect &rect,
                    const QPixmap &pixmap)
{
    const QRect target =
        QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, sizeOf(pixmap), rect);
    const QPointF offset = towardsPixel(painter, target.topLeft());
    painter.translate(offset);
    style.proxy()->drawItemPixmap(&painter, target, Qt::AlignCenter, pixmap);
    painter.translate(-offset);
}

QPalette paletteWith(const QPalette &palette, QPalette::ColorRole role, const QBrush &brush)
{
    if (brush.style() == Qt::NoBrush) {
        return palette;
    }
    static ChangedPalettes palettes;
    return palettes.palette(palette, role, brush);
}

QString elidedText(const QFontMetrics &metrics, const QString &text, Qt::TextElideMode mode,
                   int width, int flags)
{
    // Fonts are not to be taken down after the application, so they are left to the end of the
    // process.
    static auto *texts = new ElidedTexts;
    return texts->text(metrics, text, {mode, width, flags});
}

int mnemonicFlags(const BaseStyle &style, const PaintRequest &request)
{
    return style.proxy()->styleHint(QStyle::SH_UnderlineShortcut, request.option, request.widget)
               ? Qt::TextShowMnemonic
               : Qt::TextHideMnemonic;
}

void drawFocusRect(const BaseStyle &style, const PaintRequest &request, const QRect &rect)
{
    QStyleOptionFocusRect option;
    option.QStyleOption::operator=(*request.option);
    option.rect = rect;
    option.backgroundColor = option.palette.color(QPalette::Window);
    style.proxy()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, request.painter,
                                 request.widget);
}

template <typename ButtonOption>
void useForeground(ButtonOption &option, const QBrush &brush)
{
    if (brush.style() == Qt::NoBrush) {
        return;
    }
    option.palette = paletteWith(option.palette, QPalette::ButtonText, brush);
    option.palette = paletteWith(option.palette, QPalette::WindowText, brush);
    if (!option.icon.isNull()) {
        option.icon = ThemeColorHelper::getModifiedIconWithForegroundBrush(option.icon, brush);
    }
}

template void useForeground(QStyleOptionButton &option, const QBrush &brush);
template void useForeground(QStyleOptionToolButton &option, const QBrush &brush);

} // namespace TARN
