#pragma once

class QString;

/// Under which names theme variables are published.
namespace TARN::GroupNames {

/// \name The properties of the application object
/// \{
inline constexpr char variables[] = "theme_var";
inline constexpr char internalVariables[] = "theme_var_internal"; ///< the disabled factors
/// \}

/// \name The groups
/// \{
const QString &colors();
const QString &internalColors();
const QString &brushes();
const QString &internalBrushes();
const QString &fonts();
const QString &opacities();
const QString &cornerRadii();
const QString &disabledFactors();
/// \}

} // namespace TARN::GroupNames
