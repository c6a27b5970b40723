#include "check/rules/ContrastRules.h"

#include "check/model/Appearance.h"
#include "color/Tones.h"
#include "text/Literals.h"

#include <catalogue/Words.h>
#include <common_utils/Contrast.h>
#include <resources/ThemeResources.h>

#include <cmath>

namespace TARN::ThemeTool {

namespace {

/// Something that is seen on surfaces.
struct Sight
{
    QString name;
    QString state;
    Appearance::Colors colors;
    QStringList surfaces;
    double needed;
    Place place;
};

/// Two colours as they come to lie on each other.
struct Pair
{
    QColor color;
    QColor ground;
    double ratio;
};

/// Returns \a ratio with one decimal, never more than it is.
QString shownRatio(double ratio)
{
    return QString::number(std::floor(ratio * 10) / 10, 'f', 1) + ":1"_s;
}

class ContrastCheck
{
public:
    ContrastCheck(const Configuration &configuration, const Demand &demand,
                  const QVector<MappingEntry> &palette, FindingList &findings)
        : m_configuration(configuration)
        , m_demand(demand)
        , m_appearance(configuration, palette)
        , m_findings(findings)
    {
    }

    void checkVariable(const Variable &variable);
    void checkPaletteText(const PaletteText &text);

private:
    void check(const Sight &sight);
    void report(const Sight &sight, const QString &surface, const Pair &worst);
    QString suggestion(const Sight &sight, const Pair &worst);
    const Appearance::Colors &surface(const QString &name);
    double ratio(const QColor &color, const QColor &ground);
    QStringList disabledSurfaces(const QStringList &surfaces) const;

    const Configuration &m_configuration;
    const Demand &m_demand;
    Appearance m_appearance;
    FindingList &m_findings;
    QHash<QString, Appearance::Colors> m_surfaces;
    QHash<quint64, double> m_ratios;
    QHash<QString, QString> m_suggestions;
};

void ContrastCheck::checkVariable(const Variable &variable)
{
    const double needed = Catalogue::neededContrast(variable.role);
    if (needed == 0) {
        return;
    }
    const auto entries = m_configuration.entries.constFind(variable.group);
    if (entries == m_configuration.entries.cend()) {
        return;
    }
    check({variable.name, "enabled"_s, m_appearance.variable(variable.name), variable.surfaces,
           needed, entries->value(variable.name)});
    if (variable.role == VariableRole::Text && variable.hasDisabledTwin) {
        const QString twin = variable.name + Words::disabled;
        check({twin, "disabled"_s, m_appearance.variable(twin), disabledSurfaces(variable.surfaces),
               Catalogue::disabledTextContrast, entries->value(twin)});
    }
}

/// Returns what disabled text is seen on. The palette's disabled surfaces are none of the theme's.
QStringList ContrastCheck::disabledSurfaces(const QStringList &surfaces) const
{
    QStringList names;
    for (const QString &surface : surfaces) {
        if (paletteRoleOf(surface).isEmpty()) {
            names.append(m_demand.hasTwin(surface) ? surface + Words::disabled : surface);
        }
    }
    return names;
}

void ContrastCheck::checkPaletteText(const PaletteText &text)
{
    const MappingEntry *entry = m_appearance.paletteEntry(text.role);
    if (entry) {
        check({text.role, "active"_s, m_appearance.paletteRole(text.role), text.surfaces,
               Catalogue::textContrast, entry->place});
    }
}

void ContrastCheck::check(const Sight &sight)
{
    for (const QString &name : sight.surfaces) {
        Pair worst{{}, {}, sight.needed};
        for (const QColor &ground : surface(name)) {
            for (const QColor &color : sight.colors) {
                const double found = ratio(color, ground);
                if (found < worst.ratio) {
                    worst = {color, ground, found};
                }
            }
        }
        if (worst.color.isValid()) {
            report(sight, name, worst);
        }
    }
}

void ContrastCheck::report(const Sight &sight, const QString &surface, const Pair &worst)
{
    m_findings.add("low-contrast"_s, sight.place,
                   "%1 on %2 (%3) has a contrast of %4, %5 is needed"_s.arg(
                       quoted(sight.name), quoted(surface), sight.state, shownRatio(worst.ratio),
                       shownRatio(sight.needed)),
                   suggestion(sight, worst));
}

/// Returns a legible colour: one for all surfaces where there is one, else one for the surface of
/// the pair \a worst.
QString ContrastCheck::suggestion(const Sight &sight, const Pair &worst)
{
    QVector<ContrastDemand> demands;
    QString key = worst.color.name() + worst.ground.name() + QString::number(sight.needed);
    for (const QString &name : sight.surfaces) {
        for (const QColor &ground : surface(name)) {
            demands.append({ground, sight.needed});
            key += ground.name();
        }
    }
    const auto known = m_suggestions.constFind(key);
    if (known != m_suggestions.cend()) {
        return *known;
    }
    QColor wanted = worst.color;
    wanted.setAlpha(255);
    QColor tone = legibleTone(wanted, demands);
    if (!meets(tone, demands)) {
        tone = legibleTone(wanted, {{worst.ground, sight.needed}});
    }
    QString text = "The nearest legible colour is "_s + tone.name().toUpper();
    m_suggestions.insert(key, text);
    return text;
}

const Appearance::Colors &ContrastCheck::surface(const QString &name)
{
    auto known = m_surfaces.constFind(name);
    if (known == m_surfaces.cend()) {
        known = m_surfaces.insert(name, m_appearance.surface(name));
    }
    return *known;
}

/// Returns the contrast of \a color painted over \a ground. Themes use few colours in many places.
double ContrastCheck::ratio(const QColor &color, const QColor &ground)
{
    constexpr int bitsOfColor = 32;
    const quint64 key = (quint64(color.rgba()) << bitsOfColor) | ground.rgba();
    const auto known = m_ratios.constFind(key);
    if (known != m_ratios.cend()) {
        return *known;
    }
    const QColor seen = color.alpha() == 255 ? color : mixed(color, 1, ground);
    const double ratio = Helpers::contrastRatio(seen, ground);
    m_ratios.insert(key, ratio);
    return ratio;
}

} // namespace

void checkContrast(const Configuration &configuration, const Demand &demand,
                   const QVector<MappingEntry> &palette, FindingList &findings)
{
    ContrastCheck check(configuration, demand, palette, findings);
    for (const Variable &variable : demand.variables()) {
        check.checkVariable(variable);
    }
    for (const PaletteText &text : Catalogue::paletteTexts()) {
        check.checkPaletteText(text);
    }
}

} // namespace TARN::ThemeTool
