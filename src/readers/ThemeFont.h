#pragma once

#include <mox_common_theme_export.h>

#include <QtCore/QString>
#include <QtCore/QVariantMap>
#include <QtCore/QVector>
#include <QtGui/QFont>

namespace TARN {

/// A theme's font in its four sizes.
class MOX_COMMON_THEME_EXPORT ThemeFont
{
public:
    /// The sizes. No operation checks its argument: only these four values may be passed.
    enum ThemeFontId { Small = 0, Base = 1, Medium = 2, Large = 3 };

    /// Starts with the application's default font in all sizes.
    ThemeFont();
    /// Starts with \a font in all sizes.
    explicit ThemeFont(const QFont &font);

    QFont getFont(ThemeFontId id) const;
    void setFont(ThemeFontId id, const QFont &font);

    /// Returns the names under which the sizes are published, in the order of ThemeFontId:
    /// "small", "base", "medium", "large".
    static QVector<QString> getFontsLabels();

    /// Returns the name under which the size \a id is published.
    static QString getFontName(ThemeFontId id);

    /// Returns the fonts by the names under which they are published.
    QVariantMap toVariantMap() const;

private:
    QVector<QFont> m_fonts;
};

} // namespace TARN
