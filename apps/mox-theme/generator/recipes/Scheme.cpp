#include "generator/recipes/Scheme.h"

#include <catalogue/Words.h>

namespace TARN::ThemeTool {

namespace {

// Enough for a surface to be warm or cool, too little to be called coloured.
constexpr double mostNeutralChroma = 0.03;
constexpr double defaultNeutralChroma = 0.014;

/// Returns the hue and chroma of the surfaces.
Oklch neutralOf(const Tokens &tokens)
{
    if (tokens.base == Base::HighContrast) {
        return {};
    }
    if (tokens.neutral.isValid()) {
        Oklch neutral = toOklch(tokens.neutral);
        neutral.chroma = qMin(neutral.chroma, mostNeutralChroma);
        return neutral;
    }
    Oklch neutral = toOklch(tokens.accent);
    neutral.chroma = qMin(neutral.chroma, defaultNeutralChroma);
    return neutral;
}

} // namespace

Scheme::Scheme(const Tokens &tokens)
    : m_tokens(tokens)
    , m_tones(tonesOf(tokens.base))
    , m_neutral(neutralOf(tokens))
{
}

QColor Scheme::color(const QString &name) const
{
    const auto known = m_colors.constFind(name);
    if (known != m_colors.constEnd()) {
        return *known;
    }
    if (m_underWay.contains(name)) {
        m_circle = m_underWay.mid(m_underWay.indexOf(name));
        return {};
    }
    m_underWay.append(name);
    const QColor color = compute(name);
    m_underWay.removeLast();
    m_colors.insert(name, color);
    return color;
}

QColor Scheme::compute(const QString &name) const
{
    const auto value = m_tokens.colors.constFind(name);
    if (value != m_tokens.colors.constEnd()) {
        return overridden(*value);
    }
    if (const ColorRecipe *recipe = findColorRecipe(name)) {
        return recipe->value(*this);
    }
    if (!name.endsWith(Words::disabled)) {
        return {};
    }
    const QString enabledName = name.chopped(Words::disabled.size());
    const ColorRecipe *recipe = findColorRecipe(enabledName);
    return recipe ? recipe->disabled(*this, color(enabledName)) : QColor();
}

QColor Scheme::overridden(const QString &value) const
{
    QColor color;
    if (value.startsWith(QLatin1Char('#')) || !findColorRecipe(value)) {
        color.setNamedColor(value);
    }
    return color.isValid() ? color : this->color(value);
}

QColor Scheme::neutral(double lightness) const
{
    return toColor({lightness, m_neutral.chroma, m_neutral.hue});
}

QVector<ContrastDemand> Scheme::demands(const char *surfaces, double ratio, bool enabled) const
{
    QVector<ContrastDemand> demands;
    const QStringList names = QString::fromLatin1(surfaces).split(QLatin1Char(' '));
    for (const QString &name : names) {
        demands.append({color(enabled ? name : name + Words::disabled), ratio});
    }
    return demands;
}

} // namespace TARN::ThemeTool
