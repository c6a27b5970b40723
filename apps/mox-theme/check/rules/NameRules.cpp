#include "check/rules/NameRules.h"

#include "text/DidYouMean.h"
#include "text/Literals.h"

#include <catalogue/Words.h>
#include <resources/ThemeResources.h>

namespace TARN::ThemeTool {

namespace {

/// What a theme lacks of one family of names in one group.
struct Gap
{
    QString group;
    QString family;
    QStringList names;
};

/// Returns the names of \a variable and of its twin that \a configuration lacks.
QStringList lackingNames(const Configuration &configuration, const Variable &variable)
{
    QStringList names;
    const auto entries = configuration.entries.constFind(variable.group);
    const auto addLacking = [&](const QString &name) {
        if (entries == configuration.entries.cend() || !entries->contains(name)) {
            names.append(name);
        }
    };
    addLacking(variable.name);
    if (variable.hasDisabledTwin) {
        addLacking(variable.name + Words::disabled);
    }
    return names;
}

QVector<Gap> gaps(const Configuration &configuration, const Demand &demand)
{
    QVector<Gap> gaps;
    QHash<QString, int> indexes;
    for (const Variable &variable : demand.variables()) {
        // The font's sizes have a rule of their own.
        if (variable.group == ThemeResources::getFontsVarPrefix()) {
            continue;
        }
        const QStringList names = lackingNames(configuration, variable);
        if (names.isEmpty()) {
            continue;
        }
        const QString key = variablePath(variable.group, variable.family);
        const auto index = indexes.constFind(key);
        if (index == indexes.cend()) {
            indexes.insert(key, gaps.size());
            gaps.append({variable.group, variable.family, names});
        } else {
            gaps[*index].names += names;
        }
    }
    return gaps;
}

/// Returns the beginning of \a names for a sentence.
QString someOf(const QStringList &names)
{
    constexpr int shown = 3;
    QStringList texts;
    for (const QString &name : names.mid(0, shown)) {
        texts.append(quoted(name));
    }
    const int others = names.size() - texts.size();
    return texts.join(", "_s) + (others > 0 ? " and %1 more"_s.arg(others) : QString());
}

/// Returns why nothing ever sees the entry \a name of \a group; an empty text when it is seen.
QString uselessness(const Configuration &configuration, const Demand &demand,
                    const QSet<QString> &referred, const QString &group, const QString &name)
{
    const QString original = withoutDerivedPrefix(name);
    const bool hasVariants = group == ThemeResources::getColorsVarPrefix() ||
                             group == ThemeResources::getBrushesVarPrefix();
    if (hasVariants && original != name && configuration.entries.value(group).contains(original)) {
        return quoted(name) + " is replaced by the variant that the library derives from "_s +
               quoted(original);
    }
    const bool isSeen = demand.asksFor(group, name) || referred.contains(variablePath(group, name));
    return isSeen ? QString() : "Nothing asks for "_s + quoted(name);
}

/// Returns the names of \a group that the theme lacks, which an unused one may be meant for.
KnownNames lackingIn(const QString &group, const QVector<Gap> &gaps)
{
    QStringList names;
    for (const Gap &gap : gaps) {
        if (gap.group == group) {
            names += gap.names;
        }
    }
    return KnownNames(names);
}

} // namespace

void reportMissing(const Configuration &configuration, const Demand &demand, bool all,
                   FindingList &findings)
{
    const QString rule = "missing-variable"_s;
    for (const Gap &gap : gaps(configuration, demand)) {
        const Place place = configuration.lists.value(gap.group);
        const QString family = quoted(gap.family);
        const bool isGrouped = !all && gap.names.size() > 1;
        if (isGrouped) {
            findings.add(rule, place,
                         "%1 names of %2 are missing: %3"_s.arg(QString::number(gap.names.size()),
                                                                family, someOf(gap.names)));
            continue;
        }
        for (const QString &name : gap.names) {
            findings.add(rule, place, quoted(name) + " of "_s + family + " is missing"_s);
        }
    }
}

void reportUnused(const Configuration &configuration, const Demand &demand,
                  const QSet<QString> &referred, FindingList &findings)
{
    const QVector<Gap> lacking = gaps(configuration, demand);
    for (auto group = configuration.entries.cbegin(); group != configuration.entries.cend();
         ++group) {
        const KnownNames candidates = lackingIn(group.key(), lacking);
        for (auto entry = group->cbegin(); entry != group->cend(); ++entry) {
            const QString text =
                uselessness(configuration, demand, referred, group.key(), entry.key());
            if (!text.isEmpty()) {
                findings.add("unused-entry"_s, *entry, text,
                             didYouMean(candidates.nearest(entry.key())));
            }
        }
    }
}

} // namespace TARN::ThemeTool
