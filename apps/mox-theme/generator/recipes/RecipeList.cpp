#include "generator/recipes/RecipeList.h"

namespace TARN::ThemeTool {

namespace {

constexpr char window[] = "BackgroundColor";

QColor disabledSurface(const Scheme &scheme, const QColor &color)
{
    return color.alpha() == 0 ? color
                              : mixed(color, scheme.tones().disabledSurface, scheme[window]);
}

QColor disabledLine(const Scheme &scheme, const QColor &color)
{
    return mixed(color, scheme.tones().disabledText, scheme[window]);
}

} // namespace

void RecipeList::begin(const char *heading)
{
    m_heading = QString::fromLatin1(heading);
}

void RecipeList::addSurface(const QString &name, Value value)
{
    m_recipes.append({name, m_heading, std::move(value), disabledSurface});
}

void RecipeList::addSurface(const char *name, Value value)
{
    addSurface(QString::fromLatin1(name), std::move(value));
}

void RecipeList::addLine(const QString &name, Value value)
{
    m_recipes.append({name, m_heading, std::move(value), disabledLine});
}

void RecipeList::addLine(const char *name, Value value)
{
    addLine(QString::fromLatin1(name), std::move(value));
}

void RecipeList::addText(const QString &name, Value value, const QString &surfaces)
{
    const QByteArray names = surfaces.toLatin1();
    m_recipes.append(
        {name, m_heading, std::move(value), [names](const Scheme &scheme, const QColor &color) {
             const double ratio = scheme.tones().disabledContrast;
             return legibleTone(disabledLine(scheme, color), scheme.demands(names, ratio, false));
         }});
}

void RecipeList::addText(const char *name, Value value, const char *surfaces)
{
    addText(QString::fromLatin1(name), std::move(value), QString::fromLatin1(surfaces));
}

} // namespace TARN::ThemeTool
