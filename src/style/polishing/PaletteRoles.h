#pragma once

#include "style/asking/Mode.h"

#include <QtGui/QPalette>

#include <optional>

namespace TARN {

/// Gives palettes the roles of the style: by default all, in the complete mode those that nobody
/// has set on purpose.
class PaletteRoles
{
public:
    explicit PaletteRoles(Mode mode)
        : m_mode(mode)
    {
    }

    /// Replaces the roles of \a palette by those of \a own, the style's palette.
    void polish(QPalette &palette, const QPalette &own);

private:
    Mode m_mode;
    /// What the toolkit has polished for the whole application: the desktop's palette, in which
    /// every role counts as set. It is what a style is asked for first.
    std::optional<QPalette> m_toolkits;
};

} // namespace TARN
