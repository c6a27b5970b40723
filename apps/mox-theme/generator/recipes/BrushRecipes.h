#pragma once

#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtCore/QVector>

namespace TARN::ThemeTool {

/// Returns the name of the colour that the brush \a name is painted in; of its disabled twin for
/// that of a brush. Empty when the brush is none of the catalogue.
QString brushColor(const QString &name);

/// A role of the palette, the group that is set, and the colour that it is set to.
struct PaletteRecipe
{
    const char *role;
    const char *group;
    const char *color;
};

/// Returns the roles of the palette, section by section: the heading and its roles.
const QVector<QPair<QString, QVector<PaletteRecipe>>> &paletteRecipes();

} // namespace TARN::ThemeTool
