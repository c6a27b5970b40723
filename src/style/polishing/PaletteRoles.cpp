#include "style/polishing/PaletteRoles.h"

namespace TARN {

namespace {

constexpr QPalette::ColorGroup groups[] = {QPalette::Active, QPalette::Inactive,
                                           QPalette::Disabled};

/// Gives \a target the roles that are set in \a source.
void copySetRoles(const QPalette &source, QPalette &target)
{
    for (int i = 0; i < QPalette::NColorRoles; ++i) {
        if ((source.resolve() & (1U << uint(i))) == 0) {
            continue;
        }
        const auto role = static_cast<QPalette::ColorRole>(i);
        for (const QPalette::ColorGroup group : groups) {
            target.setBrush(group, role, source.brush(group, role));
        }
    }
}

} // namespace

void PaletteRoles::polish(QPalette &palette, const QPalette &own)
{
    if (m_mode == Mode::Default) {
        palette = own;
        return;
    }
    if (!m_toolkits) {
        m_toolkits = palette;
    }
    QPalette polished = own;
    if (palette != *m_toolkits) {
        copySetRoles(palette, polished);
    }
    polished.resolve(palette.resolve());
    palette = polished;
}

} // namespace TARN
