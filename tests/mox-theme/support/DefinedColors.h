#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtGui/QColor>

#include <generator/recipes/ThemeDefinition.h>

/// The colours of a theme by the names of its colours, its brushes, and its palette roles, which
/// begin with "palette/".
class DefinedColors
{
public:
    explicit DefinedColors(const TARN::ThemeTool::ThemeDefinition &definition);

    bool has(const QString &name) const { return m_colors.contains(name); }

    /// Returns what is seen where \a name is painted over \a ground.
    QColor seen(const QString &name, const QColor &ground) const;
    /// Returns what is seen where \a name is painted over the window.
    QColor seen(const QString &name) const;

private:
    QHash<QString, QColor> m_colors;
};
