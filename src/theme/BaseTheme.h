#pragma once

#include <mox_common_theme_export.h>
#include <theme/BaseThemeSettings.h>
#include <theme/Theme.h>

namespace TARN {

/// A theme that is read from a directory of theme files.
class MOX_COMMON_THEME_EXPORT BaseTheme : public Theme
{
public:
    /// Creates the theme that lies in \a directory (given without a trailing separator) and
    /// reads its description file. Never fails: a theme without a readable description applies
    /// nothing.
    explicit BaseTheme(const QString &directory);

    /// Returns the display name from the theme's description file, empty when there is none.
    QString getName() const override;

    /// Applies the theme to \a app: fonts, theme variables, palette, style, stylesheet,
    /// application font, icon theme and search paths.
    ///
    /// A theme without a readable description logs one message and changes nothing. Any other
    /// faulty file is logged, and what could be read of it is applied. Nothing is applied to a
    /// null \a app.
    ///
    /// By default whatever an earlier theme installed stays: values that the library looked up
    /// once keep their first value, and the earlier theme's folders stay first in the search
    /// paths. An application that sets its dynamic property "appLiveThemeSwitch" to true gets a
    /// clean switch instead: kept values are dropped, the fonts, resource files and search paths
    /// of earlier themes are taken back, and every widget is polished and painted afresh. The
    /// application's own palettes, fonts, delegates and event filters are left alone.
    ///
    /// An application that sets its dynamic property "appCompleteTheming" to true gets, besides a
    /// clean switch, no stylesheet: the style measures and paints everything itself. The
    /// application's own stylesheet, and the palette roles, fonts and icon theme that it has chosen
    /// before or since, stay. When the style leaves the application (another one is set, or it is
    /// deleted), the application and its widgets get back what they had, but for what was changed
    /// since. The property is read at each call: set later, it takes effect with the next theme,
    /// which removes the stylesheet of the former one; set to false again, the next theme is
    /// applied as by default.
    void customize(QApplication *app) override;

private:
    QString m_directory;
    BaseThemeSettings m_settings;
};

} // namespace TARN
