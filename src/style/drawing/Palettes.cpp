#include "style/drawing/Palettes.h"

#include "resources/kept/SlotCache.h"

namespace TARN {

namespace {

/// How much the edges of the border palettes differ from those of the palette they are made of.
constexpr int edgeContrast = 115;

/// A palette that is to have another brush.
struct Change
{
    QPalette source;
    QPalette::ColorRole role;
    QBrush brush;

    bool operator==(const Change &other) const
    {
        return role == other.role && brush == other.brush && source.isCopyOf(other.source) &&
               source.currentColorGroup() == other.source.currentColorGroup() &&
               source.resolve() == other.source.resolve();
    }

    std::size_t hash() const
    {
        return mixedHash({std::size_t(source.cacheKey()), std::size_t(source.currentColorGroup()),
                          std::size_t(role), brush.color().rgba()});
    }
};

QPalette changed(const Change &change)
{
    QPalette palette = change.source;
    palette.setBrush(palette.currentColorGroup(), change.role, change.brush);
    return palette;
}

} // namespace

QPalette paletteWith(const QPalette &palette, QPalette::ColorRole role, const QBrush &brush)
{
    if (brush.style() == Qt::NoBrush) {
        return palette;
    }
    // Setting a brush copies a palette. Nothing outdates what was made of it.
    static SlotCache<Change, QPalette, 61> palettes(changed);
    return palettes.value({palette, role, brush});
}

const QBrush &lightOutlineBrush(const QPalette &palette)
{
    return palette.brush(QPalette::Current, QPalette::Midlight);
}

QPalette shadeBorderPalette(const QPalette &palette)
{
    QPalette result = palette;
    result.setBrush(QPalette::All, QPalette::Light, palette.light().color().lighter(edgeContrast));
    result.setBrush(QPalette::All, QPalette::Dark, palette.dark().color().darker(edgeContrast));
    return result;
}

QPalette windowBorderPalette(const QPalette &palette)
{
    QPalette result = palette;
    result.setBrush(QPalette::All, QPalette::Light, palette.light().color().lighter(edgeContrast));
    result.setBrush(QPalette::All, QPalette::Midlight,
                    palette.midlight().color().darker(edgeContrast));
    // The dark edge is lightened too: a window's border is softer than a shade.
    result.setBrush(QPalette::All, QPalette::Dark, palette.dark().color().lighter(edgeContrast));
    return result;
}

} // namespace TARN
