#pragma once

#include <mox_common_theme_export.h>

#include <QtCore/QRegularExpression>
#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtGui/QBrush>
#include <QtGui/QColor>
#include <QtGui/QCursor>
#include <QtGui/QFont>
#include <QtGui/QIcon>
#include <QtGui/QPixmap>

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

    /// \name Images by their name
    ///
    /// Applying a theme sets up the QDir search paths "icons" and "cursors": the theme's own
    /// folder, then the compiled-in set. The first folder that holds a file of the name, with
    /// the extension of any image format that Qt can read or as the name stands, gives the image.
    ///
    /// Each call searches and reads anew; who paints often keeps the result. A QGuiApplication has
    /// to exist. What is neither a file nor a folder, such as a pipe, gives no image: reading it
    /// might never end. Nor does a drawing (SVG) with a link to another file, or an image of too
    /// many pixels: 2^24 for an icon, 2^22 for a cursor, 2^27 for a pixmap, of the file even where
    /// it is scaled; drawings have pixels only where they are drawn at their own size. A warning
    /// names such a file.
    /// \{

    /// Returns the icon \a name ("action.copy"); a null icon when there is none. Icons of the icon
    /// theme (QIcon::fromTheme()) are not looked at.
    static QIcon getIcon(const QString &name);
    /// Returns the names, without their extensions, of the icon files whose file names contain a
    /// match of \a filter: each name once, the theme's own before the compiled-in ones, in no
    /// particular order otherwise. Files with "Brush.svg" in their name are left out.
    static QStringList getIcons(const QRegularExpression &filter);
    /// Returns the icon \a name rendered at \a size, or at its own size when \a size is invalid; a
    /// null pixmap when there is none or it can't be read.
    static QPixmap getPixmap(const QString &name, const QSize &size);
    /// Returns the cursor \a name ("pick.plus"). Of a file with the extension "cur", exactly, it
    /// has the hotspot of the file's first image; of any other its hotspot is in the middle. A
    /// name that is not found gives the cursor that Qt makes of a null pixmap: the arrow.
    static QCursor getCursor(const QString &name);
    /// \}
};

} // namespace TARN
