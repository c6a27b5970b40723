#pragma once

#include "check/model/Configuration.h"
#include "check/model/PaletteMapping.h"

#include <QtCore/QVector>

namespace TARN::ThemeTool {

/// How a theme's variables and palette roles look.
class Appearance
{
public:
    /// The colours of one thing; a gradient has several.
    using Colors = QVector<QColor>;

    Appearance(const Configuration &configuration, const QVector<MappingEntry> &palette);

    /// Returns the colours of the variable \a name; none when the theme leaves them open.
    Colors variable(const QString &name) const;

    /// Returns the entry that sets the palette's \a role for active windows; null when none does.
    const MappingEntry *paletteEntry(const QString &role) const;

    /// Returns the colours of the palette's \a role in active windows.
    Colors paletteRole(const QString &role) const;

    /// Returns the opaque colours of the surface \a name, a variable or "palette/" and a role, as
    /// it is seen: a translucent one mixed with what lies below it.
    Colors surface(const QString &name) const;

private:
    Colors paletteColors(const MappingEntry &entry) const;
    Colors opaque(const Colors &colors, const Colors &grounds) const;

    const Configuration &m_configuration;
    QHash<int, MappingEntry> m_palette; // by role
};

/// Returns the role of a surface in the palette; an empty text when it is a variable.
QString paletteRoleOf(const QString &surface);

} // namespace TARN::ThemeTool
