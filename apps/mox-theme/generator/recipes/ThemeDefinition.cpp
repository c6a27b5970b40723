#include "generator/recipes/ThemeDefinition.h"

#include "generator/recipes/BrushRecipes.h"
#include "generator/recipes/Scheme.h"
#include "text/DidYouMean.h"
#include "text/Literals.h"

#include <catalogue/Catalogue.h>
#include <catalogue/Words.h>

#include <QtCore/QRegularExpression>
#include <QtCore/QSet>

namespace TARN::ThemeTool {

namespace {

constexpr QLatin1String disabledSuffix = Words::disabled;

bool isColorVariable(const QString &name)
{
    const bool isTwin = name.endsWith(disabledSuffix);
    return findColorRecipe(name) ||
           (isTwin && findColorRecipe(name.chopped(disabledSuffix.size())));
}

/// The brushes that do not follow their recipe.
class BrushOverrides
{
public:
    explicit BrushOverrides(const Tokens &tokens)
    {
        for (const auto &[pattern, color] : tokens.brushes) {
            const QString expression = QRegularExpression::wildcardToRegularExpression(pattern);
            m_overrides.append({QRegularExpression(expression), color});
        }
    }

    /// Returns what the brush \a name is set to; empty when it follows its recipe. A disabled twin
    /// follows its brush.
    QString find(const QString &name) const
    {
        const QString value = fitting(name);
        if (!value.isEmpty() || !name.endsWith(disabledSuffix)) {
            return value;
        }
        const QString twinValue = fitting(name.chopped(disabledSuffix.size()));
        return isColorVariable(twinValue + disabledSuffix) ? twinValue + disabledSuffix : QString();
    }

private:
    QString fitting(const QString &name) const
    {
        for (auto it = m_overrides.crbegin(); it != m_overrides.crend(); ++it) {
            if (it->first.match(name).hasMatch()) {
                return it->second;
            }
        }
        return {};
    }

    QVector<QPair<QRegularExpression, QString>> m_overrides;
};

/// Appends \a entry to the last section, or to a new one when that is of another heading.
template <typename Entry>
void append(QVector<Section<Entry>> &sections, const QString &heading, const Entry &entry)
{
    if (sections.isEmpty() || sections.last().heading != heading) {
        sections.append(Section<Entry>{heading, {}});
    }
    sections.last().entries.append(entry);
}

/// Collects the entries of a theme: brushes first, then the colours that anything asks for.
class Definer
{
public:
    explicit Definer(const Tokens &tokens)
        : m_tokens(tokens)
        , m_scheme(tokens)
        , m_overrides(tokens)
    {
    }

    ThemeDefinition define();

private:
    void defineBrushes();
    void defineBrush(const Variable &variable, const QString &name);
    QString colorOf(const QString &brush);
    QString ownColor(const QString &brush, const QColor &color);
    void definePalette();
    void useNamedColors();
    void defineColors();

    const Tokens &m_tokens;
    Scheme m_scheme;
    BrushOverrides m_overrides;
    QSet<QString> m_usedColors;
    ThemeDefinition m_definition;
};

ThemeDefinition Definer::define()
{
    m_definition.name = m_tokens.name;
    m_definition.font = m_tokens.font;
    m_definition.images = m_tokens.images;
    m_definition.cornerRadii = m_tokens.cornerRadii;
    m_definition.opacities = {{"RubberBandOpacity"_s, m_tokens.rubberBandOpacity}};
    // Light text of a light theme is that of selections, which are much less dark than a dark
    // window.
    const int lightForeground = m_scheme.tones().isDark ? 160 : 125;
    m_definition.factors = {{"LightForegroundDisableFactor"_s, lightForeground},
                            {"LightBackgroundDisableFactor"_s, 103},
                            {"DarkForegroundDisableFactor"_s, 250},
                            {"DarkBackgroundDisableFactor"_s, 104}};
    m_definition.darkIcons = m_scheme.color("BackgroundColor"_s).lightnessF() > 0.5;
    m_definition.description = m_definition.darkIcons ? "dark text on light surfaces."_s
                                                      : "light text on dark surfaces."_s;
    defineBrushes();
    definePalette();
    useNamedColors();
    defineColors();
    return m_definition;
}

void Definer::defineBrushes()
{
    for (const Variable &variable : Catalogue::variables()) {
        if (variable.group == "brushes"_s) {
            defineBrush(variable, variable.name);
            if (variable.hasDisabledTwin) {
                defineBrush(variable, variable.name + disabledSuffix);
            }
        }
    }
}

void Definer::defineBrush(const Variable &variable, const QString &name)
{
    append(m_definition.brushes, variable.family + "."_s, BrushEntry{name, colorOf(name)});
}

/// Returns the name of the colour of \a brush, which is used from now on.
QString Definer::colorOf(const QString &brush)
{
    const QString override = m_overrides.find(brush);
    QString name = override.isEmpty() ? brushColor(brush) : override;
    if (!isColorVariable(name)) {
        name = ownColor(brush, QColor(name));
    }
    m_usedColors.insert(name);
    return name;
}

/// Adds \a color as a colour of its own for \a brush, since brushes refer to colours by name.
QString Definer::ownColor(const QString &brush, const QColor &color)
{
    const bool isTwin = brush.endsWith(disabledSuffix);
    const QString stem = isTwin ? brush.chopped(disabledSuffix.size()) : brush;
    const QString name = stem.chopped(5) + "OwnColor"_s + (isTwin ? disabledSuffix : QString());
    append(m_definition.colors, "Colours of single brushes."_s, ColorEntry{name, color});
    return name;
}

void Definer::definePalette()
{
    for (const auto &[heading, recipes] : paletteRecipes()) {
        for (const PaletteRecipe &recipe : recipes) {
            const QString color = QString::fromLatin1(recipe.color);
            m_usedColors.insert(color);
            append(m_definition.palette, heading,
                   PaletteEntry{QString::fromLatin1(recipe.role), QString::fromLatin1(recipe.group),
                                color});
        }
    }
}

/// The library asks for some colours by name, itself and in its stylesheets.
void Definer::useNamedColors()
{
    for (const Variable &variable : Catalogue::variables()) {
        if (variable.group == "colors"_s) {
            m_usedColors.insert(variable.name);
            if (variable.hasDisabledTwin) {
                m_usedColors.insert(variable.name + disabledSuffix);
            }
        }
    }
}

void Definer::defineColors()
{
    QVector<Section<ColorEntry>> sections;
    for (const ColorRecipe &recipe : colorRecipes()) {
        for (const QString &name : {recipe.name, recipe.name + disabledSuffix}) {
            if (m_usedColors.contains(name)) {
                append(sections, recipe.heading, ColorEntry{name, m_scheme.color(name)});
            }
        }
    }
    m_definition.colors = sections + m_definition.colors;
}

QString didYouMean(const QStringList &names, const QString &mistyped)
{
    const QString nearest = KnownNames(names).nearest(mistyped);
    return nearest.isEmpty() ? QString() : "; did you mean '"_s + nearest + "'?"_s;
}

QStringList colorNames()
{
    QStringList names;
    for (const ColorRecipe &recipe : colorRecipes()) {
        names << recipe.name << recipe.name + disabledSuffix;
    }
    return names;
}

QStringList brushNames()
{
    QStringList names;
    for (const Variable &variable : Catalogue::variables()) {
        if (variable.group == "brushes"_s) {
            names << variable.name;
            if (variable.hasDisabledTwin) {
                names << variable.name + disabledSuffix;
            }
        }
    }
    return names;
}

/// Returns what is wrong with \a value, to which a colour or a brush is set.
QString valueProblem(const QString &value)
{
    if (isColorVariable(value) || QColor::isValidColor(value)) {
        return {};
    }
    return "'"_s + value + "' is neither a colour nor a colour variable"_s +
           didYouMean(colorNames(), value);
}

QString colorProblem(const QString &name, const QString &value)
{
    if (!isColorVariable(name)) {
        return "no colour variable is called '"_s + name + "'"_s + didYouMean(colorNames(), name);
    }
    return valueProblem(value);
}

QString brushProblem(const QString &pattern, const QString &value)
{
    const QRegularExpression expression(QRegularExpression::wildcardToRegularExpression(pattern));
    const QStringList names = brushNames();
    if (names.indexOf(expression) < 0) {
        return "no brush variable is called '"_s + pattern + "'"_s + didYouMean(names, pattern);
    }
    return valueProblem(value);
}

/// Returns the colours of \a tokens that are made from each other, as a problem.
QString circleProblem(const Tokens &tokens)
{
    const Scheme scheme(tokens);
    for (const QString &name : colorNames()) {
        scheme.color(name);
    }
    return scheme.circle().isEmpty()
               ? QString()
               : "these colours are made from each other: "_s + scheme.circle().join(", "_s);
}

} // namespace

ThemeDefinition defineTheme(const Tokens &tokens)
{
    return Definer(tokens).define();
}

TokenProblem overrideProblem(const Tokens &tokens)
{
    for (auto it = tokens.colors.cbegin(); it != tokens.colors.cend(); ++it) {
        const QString problem = colorProblem(it.key(), it.value());
        if (!problem.isEmpty()) {
            return {tokens.places.value(it.key()), problem};
        }
    }
    for (const auto &[pattern, value] : tokens.brushes) {
        const QString problem = brushProblem(pattern, value);
        if (!problem.isEmpty()) {
            return {tokens.places.value(pattern), problem};
        }
    }
    return {{}, circleProblem(tokens)};
}

} // namespace TARN::ThemeTool
