#pragma once

#include <mox_common_theme_export.h>

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtGui/QBrush>
#include <QtGui/QColor>
#include <QtGui/QPalette>

class QDomElement;

namespace TARN {

/// Reads the palette mapping file of a theme, "qpaletteMapping.xml", which maps theme colours and
/// brushes onto the roles of a QPalette.
///
/// The roles are independent of each other: a faulty one keeps what was set of it before the
/// fault, and all others are read.
class MOX_COMMON_THEME_EXPORT QPaletteReader
{
public:
    /// Reads the file at \a path on top of \a basePalette. References in the file are looked up
    /// in \a brushes first and then in \a colors. Never fails; getStatus() tells how it went.
    QPaletteReader(const QString &path, const QMap<QString, QBrush> &brushes,
                   const QMap<QString, QColor> &colors, const QPalette &basePalette);

    /// Returns 0 when the file was read without fault, 1 when it could not be opened, 2 when it
    /// is not well-formed or holds a faulty role.
    int getStatus() const;

    /// Returns the base palette with everything set that the file sets.
    QPalette deserialize() const;

private:
    bool loadPalette(const QDomElement &root, const QMap<QString, QBrush> &brushes,
                     const QMap<QString, QColor> &colors);
    bool loadPaletteRole(const QDomElement &roleElement, const QMap<QString, QBrush> &brushes,
                         const QMap<QString, QColor> &colors);

    int m_status = 0;
    QPalette m_palette;
};

} // namespace TARN
