#include "DefinedColors.h"

#include <color/Tones.h>

using namespace TARN::ThemeTool;

DefinedColors::DefinedColors(const ThemeDefinition &definition)
{
    QHash<QString, QColor> colors;
    for (const auto &section : definition.colors) {
        for (const ColorEntry &entry : section.entries) {
            colors.insert(entry.name, entry.color);
        }
    }
    m_colors = colors;
    for (const auto &section : definition.brushes) {
        for (const BrushEntry &entry : section.entries) {
            m_colors.insert(entry.name, colors.value(entry.color));
        }
    }
    for (const auto &section : definition.palette) {
        for (const PaletteEntry &entry : section.entries) {
            if (entry.group != QStringLiteral("Inactive")) {
                m_colors.insert(QStringLiteral("palette/") + entry.role, colors.value(entry.color));
            }
        }
    }
    // As the library paints it.
    const QString highlight = QStringLiteral("palette/Highlight");
    m_colors[highlight] =
        mixed(m_colors.value(highlight), 0.6, m_colors.value(QStringLiteral("palette/Base")));
}

QColor DefinedColors::seen(const QString &name, const QColor &ground) const
{
    const QColor color = m_colors.value(name);
    return color.alpha() == 255 ? color : mixed(QColor(color.rgb()), color.alphaF(), ground);
}

QColor DefinedColors::seen(const QString &name) const
{
    return seen(name, m_colors.value(QStringLiteral("BackgroundColor")));
}
