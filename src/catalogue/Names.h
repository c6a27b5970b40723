#pragma once

#include <QtCore/QString>
#include <QtCore/QtGlobal>
#include <QtGui/QBrush>
#include <QtGui/QColor>

/// The theme's brushes and colours by identifiers that the compiler knows.
namespace TARN {

/// A brush that the style asks for.
enum class BrushName : quint16 {
#define MOX_BRUSH(name, twin, role, surfaces, meaning) name,
#include "catalogue/Variables.def"
};

/// A colour that the style asks for.
enum class ColorName : quint16 {
#define MOX_COLOR(name, twin, role, surfaces, meaning) name,
#include "catalogue/Variables.def"
};

/// Return the name as a theme spells it.
const QString &nameOf(BrushName brush);
const QString &nameOf(ColorName color);

/// Return the theme's brush or colour; its disabled twin unless \a enabled. The references are
/// valid until the next theme is applied under "appLiveThemeSwitch"; without that property, for the
/// life of the process.
const QBrush &themeBrush(BrushName brush, bool enabled);
const QColor &themeColor(ColorName color, bool enabled);

} // namespace TARN
