#include "import/SeenColors.h"

#include "generator/recipes/ThemeDefinition.h"
#include "text/Literals.h"

#include <catalogue/Catalogue.h>

namespace TARN::ThemeTool {

SeenColors::SeenColors(const ThemeDefinition &definition)
{
    readDefinition(definition);
    for (const Variable &variable : Catalogue::variables()) {
        const double ratio = Catalogue::neededContrast(variable.role);
        if (ratio > 0) {
            addPairs(variable.name, variable.surfaces, ratio);
        }
    }
    for (const PaletteText &text : Catalogue::paletteTexts()) {
        addPairs("palette/"_s + text.role, text.surfaces, Catalogue::textContrast);
    }
}

void SeenColors::readDefinition(const ThemeDefinition &definition)
{
    for (const auto &section : definition.colors) {
        for (const ColorEntry &entry : section.entries) {
            m_colors.insert(entry.name, entry.color);
            m_shown.insert(entry.name, entry.name);
        }
    }
    for (const auto &section : definition.brushes) {
        for (const BrushEntry &entry : section.entries) {
            m_shown.insert(entry.name, entry.color);
        }
    }
    for (const auto &section : definition.palette) {
        for (const PaletteEntry &entry : section.entries) {
            if (entry.group != "Disabled"_s) {
                m_shown.insert("palette/"_s + entry.role, entry.color);
            }
        }
    }
}

void SeenColors::addPairs(const QString &above, const QStringList &surfaces, double ratio)
{
    for (const QString &surface : surfaces) {
        for (const QString &ground : m_shown.values(surface)) {
            for (const QString &seen : m_shown.values(above)) {
                m_pairs.append({seen, ground, ratio});
            }
        }
    }
}

QColor SeenColors::opaque(const QString &name) const
{
    return mixed(color(name), 1, color("BackgroundColor"_s));
}

QVector<ContrastDemand> SeenColors::demandsOn(const QString &name) const
{
    QVector<ContrastDemand> demands;
    for (const Pair &pair : m_pairs) {
        if (pair.above == name) {
            demands.append({opaque(pair.ground), pair.ratio});
        } else if (pair.ground == name) {
            demands.append({opaque(pair.above), pair.ratio});
        }
    }
    return demands;
}

QSet<QString> SeenColors::groundsOf(const QString &name) const
{
    QSet<QString> grounds;
    for (const Pair &pair : m_pairs) {
        if (pair.above == name) {
            grounds.insert(pair.ground);
        }
    }
    return grounds;
}

QSet<QString> SeenColors::illegible() const
{
    QSet<QString> names;
    for (const Pair &pair : m_pairs) {
        const QColor ground = opaque(pair.ground);
        if (!meets(mixed(color(pair.above), 1, ground), {{ground, pair.ratio}})) {
            names.insert(pair.above);
            names.insert(pair.ground);
        }
    }
    return names;
}

} // namespace TARN::ThemeTool
