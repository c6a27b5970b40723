#pragma once

#include "generator/recipes/Scheme.h"

namespace TARN::ThemeTool {

/// The recipes of a theme's colours while they are listed.
class RecipeList
{
public:
    using Value = std::function<QColor(const Scheme &)>;

    /// Begins a section under \a heading.
    void begin(const char *heading);

    /// Adds what things lie on. Disabled, it is nearer to the window.
    void addSurface(const QString &name, Value value);
    void addSurface(const char *name, Value value);
    /// Adds a line or a mark. Disabled, it is fainter.
    void addLine(const QString &name, Value value);
    void addLine(const char *name, Value value);
    /// Adds text that is seen on \a surfaces, colour variables separated by spaces. Disabled, it is
    /// fainter, and still legible on them as they are disabled.
    void addText(const QString &name, Value value, const QString &surfaces);
    void addText(const char *name, Value value, const char *surfaces);

    const QVector<ColorRecipe> &recipes() const { return m_recipes; }

private:
    QString m_heading;
    QVector<ColorRecipe> m_recipes;
};

/// Adds the colours of the buttons.
void addButtonRecipes(RecipeList &list);

} // namespace TARN::ThemeTool
