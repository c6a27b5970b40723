#pragma once

#include "check/model/Place.h"

#include <QtCore/QVector>
#include <QtGui/QPalette>

namespace TARN::ThemeTool {

/// One brush that a theme's palette mapping sets.
struct MappingEntry
{
    QPalette::ColorRole role;
    QPalette::ColorGroup group;
    QString text; ///< a colour, or "@" and the name of a brush or of a colour
    Place place;

    /// Returns the name that the entry refers to; an empty text when it spells out a colour.
    QString reference() const;
};

} // namespace TARN::ThemeTool
