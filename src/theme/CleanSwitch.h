#pragma once

#include "style/asking/Mode.h"
#include "theme/ClassChoices.h"
#include "theme/following/Followers.h"

#include <QtGui/QFont>
#include <QtGui/QPalette>

#include <optional>

class QApplication;

namespace TARN {

class ThemeFootprint;

/// The clean switch of an application that sets "appLiveThemeSwitch": one application of a theme
/// that leaves nothing of the themes before it. The complete mode implies it. Without either
/// property it does nothing, and themes add up.
///
/// Its phases are called in the order in which they stand here. Until one of them replaces it,
/// everything of the former theme is in force: whoever is told of a step finds one theme or the
/// other, and never none.
class CleanSwitch
{
public:
    /// Remembers what shows the former theme.
    CleanSwitch(QApplication &app, ThemeFootprint &footprint);

    /// Tells whether the application wants a clean switch.
    bool isActive() const { return m_followers.has_value(); }

    /// Returns the palette that the theme's palette is to be based on.
    QPalette basePalette() const;
    /// Returns the font for the sizes that the theme leaves out.
    QFont baseFont() const;

    /// Adds the fonts in \a folder, in a clean switch in place of those of former themes.
    void addFonts(const QString &folder);

    /// Forgets by what factors colours were disabled. To be called before the theme's variables are
    /// read.
    void forgetFactors();

    /// Removes the images of former themes. To be called when the theme's variables have been
    /// published; the theme's images are to be added at once, before its style is there.
    void takeBackImages();

    /// Forgets whatever somebody has looked up so far: it may be the former theme's.
    void forgetLookUps();

    /// Removes the former stylesheet. To be called before the theme's style is installed.
    void removeStyleSheet();

    /// Gives \a font to all widgets. To be called while no stylesheet is in force: widgets below
    /// that of an application do not hear of a new application font.
    void spreadFont(const QFont &font);

    /// Gives the application back the fonts that it chose for classes of widgets, in the complete
    /// mode the palettes as well: a change of the style or of the application font resets them.
    void repeatChoices() const;

    /// To be called when all has been applied: has follow what does not do so by itself.
    void finish() const;

private:
    QApplication &m_app;
    ThemeFootprint &m_footprint;
    Mode m_mode;
    bool m_styleIsNew = false;
    std::optional<Followers> m_followers;
    ClassChoices m_choices;
};

} // namespace TARN
