#pragma once

#include <mox_common_theme_export.h>

#include <QtGui/QBrush>
#include <QtGui/QColor>
#include <QtGui/QIcon>

namespace TARN {

/// Derives appearance from theme values.
class MOX_COMMON_THEME_EXPORT ThemeColorHelper
{
public:
    ThemeColorHelper() = delete;

    /// Returns the disabled variant of \a color: a light colour becomes darker, a dark one
    /// lighter, by the theme's disabled factors. \a foreground tells a text or icon colour from a
    /// fill, for which there are factors of their own.
    ///
    /// The factors are read on the first call and kept as ThemeResources keeps its values.
    static QColor disabled(const QColor &color, bool foreground);

    /// Returns \a icon with its reference foreground, "#E5EEF4", painted with \a brush.
    ///
    /// When \a brush is a theme brush and the icon theme has an icon named after \a icon, a dot
    /// and that brush, that icon is returned instead. A null \a icon gives a null icon.
    static QIcon getModifiedIconWithForegroundBrush(QIcon icon, QBrush brush);
};

} // namespace TARN
