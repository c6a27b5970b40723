#pragma once

#include <mox_common_theme_export.h>

#include <QtCore/QRegularExpression>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtGui/QBrush>
#include <QtGui/QColor>
#include <QtGui/QFont>

namespace TARN {

/// Looks up the values that the applied theme publishes, by name.
///
/// A theme publishes its variables in groups, as the dynamic property "theme_var" of the
/// application object. The typed getters below read their group once, on their first call with an
/// application object, and keep it until the process ends or a theme is applied under
/// "appLiveThemeSwitch" (see BaseTheme::customize()); the other functions read the property
/// each time. Nothing throws and nothing is logged: what is not found gives the documented
/// default. To be used on the GUI thread.
class MOX_COMMON_THEME_EXPORT ThemeResources
{
public:
    ThemeResources() = delete;

    /// Names the application's property that holds the theme's variables: "theme_var".
    static const char *getThemeVariablePropertyName();
    /// Names the application's property that holds the disabled factors: "theme_var_internal".
    static const char *getInternalThemeVariablePropertyName();

    /// \name The groups of theme variables
    /// \{
    static const QString &getColorsVarPrefix();          ///< "colors", of QColor
    static const QString &getInternalColorsVarPrefix();  ///< "internalColors", of QColor
    static const QString &getBrushesVarPrefix();         ///< "brushes", of QBrush
    static const QString &getInternalBrushesVarPrefix(); ///< "internalBrushes", of QBrush
    static const QString &getFontsVarPrefix();           ///< "fonts", of QFont
    static const QString &getOpacitiesVarPrefix();       ///< "opacities", of double
    static const QString &getCornerRadiusVarPrefix();    ///< "cornerRadius", of int
    static const QString &getDisabledFactorsVarPrefix(); ///< "factors", of int
    /// \}

    /// \name The QDir search paths of a theme's images
    /// \{
    static const QString &iconsPrefix();          ///< "icons"
    static const QString &cursorsPrefix();        ///< "cursors"
    static const QString &themeResourcesPrefix(); ///< "resources"
    /// \}

    /// Returns the theme variable at \a path ("colors/MainColor"; "colors" gives the whole group),
    /// or \a defaultValue when there is none. Parts of the path that lead beyond a value are
    /// ignored.
    static QVariant getThemeVar(const QString &path, const QVariant &defaultValue = QVariant());

    /// \name One variable by its name
    /// \{
    static QColor getColor(const QString &name); ///< An unknown name gives an invalid colour.
    static QBrush getBrush(const QString &name); ///< An unknown name gives no brush.
    static QFont getFont(const QString &name);   ///< An unknown name gives the default font.
    /// An unknown name gives 0; without an application object every name gives 1.
    static double getOpacity(const QString &name);
    /// In device-independent pixels. An unknown name gives 0.
    static double getCornerRadius(const QString &name);
    /// In percent. An unknown name gives 0; without an application object every name gives 100.
    static int getDisabledFactor(const QString &name);
    /// \}

    /// Returns the names of the colours that contain a match of \a pattern, in ascending order.
    static QStringList getColors(const QRegularExpression &pattern);

    /// Returns the name of the theme colour that equals \a color; empty when there is none. Of
    /// several, the first in ascending order that starts with "Foreground" or "Main", else the
    /// first.
    static QString getColorKey(const QColor &color);
    /// The same for theme brushes.
    static QString getBrushKey(const QBrush &brush);
    /// The same for any \a value in any \a group.
    static QString getColorOrBrushKey(const QVariant &value, const QVariantMap &group);

    /// Returns \a styleSheet with each placeholder "@group/Name@" replaced by the text of the
    /// theme variable at that path: "#rrggbb" for an opaque colour and "#aarrggbb" for any other,
    /// a number for an opacity or a corner radius, nothing for a brush. A placeholder that names
    /// no variable stays as it stands.
    static QString customizeStyleSheet(const QString &styleSheet);
};

} // namespace TARN
