#pragma once

#include <mox_common_theme_export.h>

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtGui/QBrush>
#include <QtGui/QColor>

class QDomElement;

/// Reads one kind of brush element of a theme's configuration file.
class MOX_COMMON_THEME_EXPORT BrushReader
{
public:
    BrushReader() = default;
    BrushReader(const BrushReader &) = delete;
    BrushReader &operator=(const BrushReader &) = delete;
    virtual ~BrushReader();

    /// Returns the brush that \a element defines, its colours named in \a colors. \a ok becomes
    /// false when the definition is faulty; the brush is then of no use.
    virtual QBrush readBrush(const QDomElement &element, const QMap<QString, QColor> &colors,
                             bool &ok) const = 0;
};
