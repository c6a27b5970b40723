#pragma once

#include "catalogue/Names.h"

#include <QtGui/QPalette>

namespace TARN {

/// A role that polishing gives the palettes of item views in the complete mode. What is disabled
/// has the twin of the brush of inactive windows.
struct ViewRole
{
    QPalette::ColorRole role;
    BrushName active;
    BrushName inactive;

    const QBrush &brush(QPalette::ColorGroup group) const
    {
        return themeBrush(group == QPalette::Active ? active : inactive,
                          group != QPalette::Disabled);
    }
};

inline constexpr ViewRole viewGround{QPalette::Base, BrushName::ItemViewBackgroundBrush,
                                     BrushName::ItemViewBackgroundBrush};
/// That of the list of a combo box. It is seen where items have no ground of their own.
inline constexpr ViewRole listGround{QPalette::Base, BrushName::BackgroundUpLevel1Brush,
                                     BrushName::BackgroundUpLevel1Brush};
inline constexpr ViewRole alternateGround{QPalette::AlternateBase,
                                          BrushName::ItemViewAlternateBackgroundBrush,
                                          BrushName::ItemViewAlternateBackgroundBrush};
inline constexpr ViewRole viewSelection{QPalette::Highlight, BrushName::MainBrush,
                                        BrushName::MainSubLevel1Brush};

} // namespace TARN
