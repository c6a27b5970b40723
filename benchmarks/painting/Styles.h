#pragma once

#include <QtGui/QFont>
#include <QtGui/QPalette>

/// What is measured is called by these names, or by the key of a style plugin.
namespace StyleNames {

/// The toolkit's own style, which all others are compared with.
inline const QString fusion = QStringLiteral("fusion");
/// The library's style, as it is used: with everything that applying a theme brings.
inline const QString theme = QStringLiteral("theme");
/// The same in the complete mode, which does without the stylesheet.
inline const QString complete = QStringLiteral("complete");
/// "fusion" under a dark stylesheet, as applications that go without a style have one.
inline const QString styleSheet = QStringLiteral("stylesheet");
/// A style that paints nothing, under the theme's stylesheet: what can not be saved.
inline const QString nothing = QStringLiteral("nothing");

} // namespace StyleNames

/// Returns the first key of each style plugin that is installed.
QStringList installedStyles();

/// The theme's palette and font, which the other styles are given too.
struct Look
{
    QPalette palette;
    QFont font;
};

/// Reads the look from the theme's files without applying the theme.
Look themeLook();

/// Returns whether the style brings the theme's look itself.
bool bringsThemeLook(const QString &styleName);

/// Registers the theme's fonts, for the styles that do not bring them.
void registerThemeFonts();

/// Has the application use a style; \a look is for those that do not bring it. Returns whether
/// there is such a style.
bool useStyle(const QString &styleName, const Look &look);
