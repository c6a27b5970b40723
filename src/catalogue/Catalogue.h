#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

namespace TARN {

/// How a theme variable is seen.
enum class VariableRole {
    Surface,    ///< fills what other things lie on
    Text,       ///< is read on its surfaces
    Graphic,    ///< icons, marks and handles on its surfaces
    Outline,    ///< lines without which a control is not recognised
    Decoration, ///< lines that only please the eye
    Value       ///< is no colour
};

/// A theme variable that the library can ask for.
struct Variable
{
    QString group; ///< as ThemeResources names the groups: "brushes", "colors" ...
    QString name;
    bool hasDisabledTwin; ///< whether name + "Disabled" is asked for as well
    VariableRole role;
    QString meaning; ///< what it paints, in one sentence
    /// The names of the variables on which it is seen. "palette/" and a role stands for a brush of
    /// the palette.
    QStringList surfaces;
    QString family; ///< the heading under which it is listed
};

/// A role of the palette that is seen as text.
struct PaletteText
{
    QString role;         ///< a key of QPalette::ColorRole
    QStringList surfaces; ///< as those of a variable
};

/// Every theme variable that the library can ask for: what a theme has to define.
namespace Catalogue {

/// \name The contrasts (1 to 21) that people need
/// \{
inline constexpr double textContrast = 4.5;
inline constexpr double disabledTextContrast = 2;
inline constexpr double graphicContrast = 3; ///< of graphics and outlines
/// \}

/// Returns the contrast that a variable of \a role needs on its surfaces; 0 when it needs none.
double neededContrast(VariableRole role);

/// Returns all variables, those of a family one after the other.
const QVector<Variable> &variables();

/// Returns the variable \a name of \a group; null when there is none.
const Variable *find(const QString &group, const QString &name);

/// Returns the roles of the palette that are seen as text.
const QVector<PaletteText> &paletteTexts();

/// Returns the kinds of buttons and inputs that a theme has to define; the plain kind is an empty
/// word. Applications may ask for further ones.
QStringList kinds();

/// Returns the words for the states of buttons and inputs: "Unchecked", "UncheckedHover" ...
QStringList states();

} // namespace Catalogue

} // namespace TARN
