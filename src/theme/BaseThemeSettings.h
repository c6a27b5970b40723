#pragma once

#include <mox_common_theme_export.h>

#include <QtCore/QString>

namespace TARN {

/// The description file of a theme, "theme.xml": an element "theme" with a child "name".
class MOX_COMMON_THEME_EXPORT BaseThemeSettings
{
public:
    /// Reads the description file at \a path. Never fails; getStatus() tells how it went.
    explicit BaseThemeSettings(const QString &path);

    /// Returns the theme's display name; empty when the file has none.
    QString getName() const;

    /// Returns 0 when the file was read without fault, 1 when it could not be opened, 2 when it
    /// is not well-formed.
    int getStatus() const;

private:
    QString m_name;
    int m_status = 0;
};

} // namespace TARN
