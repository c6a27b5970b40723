#include "style/drawing/Palettes.h"

#include <array>
#include <utility>

namespace TARN {

namespace {

/// How much the edges of the border palettes differ from those of the palette they are made of.
constexpr int edgeContrast = 115;

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

} // namespace

QPalette paletteWith(const QPalette &palette, QPalette::ColorRole role, const QBrush &brush)
{
    if (brush.style() == Qt::NoBrush) {
        return palette;
    }
    static ChangedPalettes palettes;
    return palettes.palette(palette, role, brush);
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
