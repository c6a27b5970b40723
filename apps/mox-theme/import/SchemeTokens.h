#pragma once

#include "import/ColorScheme.h"

#include <QtCore/QVector>

namespace TARN::ThemeTool {

struct ThemeDefinition;

/// A colour that the theme does not show as the scheme has it.
struct MovedColor
{
    QString variable;
    QColor from;
    QColor to;
};

/// Returns the tokens of a theme that is called \a name and looks like \a scheme, which has a
/// BackgroundColor. Surfaces stay as they are unless no text would be legible on them; text and
/// whatever else has to be told apart from its ground is moved until it is.
Tokens tokensFrom(const ColorScheme &scheme, const QString &name);

/// Returns the colours of \a scheme that \a definition, which was made from it, shows otherwise.
QVector<MovedColor> movedColors(const ColorScheme &scheme, const ThemeDefinition &definition);

} // namespace TARN::ThemeTool
