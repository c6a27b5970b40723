#pragma once

#include "check/model/Configuration.h"
#include "check/model/FindingList.h"
#include "check/model/ThemeFile.h"

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

/// Reads the palette mapping \a file, returns its sound entries in their order, and reports the
/// others. References are looked up in \a configuration.
QVector<MappingEntry> checkPalette(const ThemeFile &file, const Configuration &configuration,
                                   FindingList &findings);

} // namespace TARN::ThemeTool
