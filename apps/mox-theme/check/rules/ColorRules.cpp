#include "check/rules/ConfigurationRules.h"
#include "text/DidYouMean.h"
#include "text/Literals.h"

#include <readers/ConfigurationTags.h>
#include <readers/LinearGradientBrushReader.h>
#include <readers/SolidBrushReader.h>
#include <resources/ThemeResources.h>

namespace TARN::ThemeTool {

namespace {

const Noun entryNoun{QStringLiteral("entry"), QStringLiteral("entries")};

/// Returns what the author may have meant with \a text, which is no colour.
QString suggestedColor(const QString &text)
{
    const QString trimmed = text.trimmed();
    for (const QString &candidate : {trimmed, "#"_s + trimmed}) {
        if (QColor::isValidColor(candidate)) {
            return didYouMean(candidate);
        }
    }
    static const KnownNames keywords(QColor::colorNames());
    return didYouMean(keywords.nearest(text));
}

/// Enters a sound entry into \a values, and into \a internalValues when it is marked so.
template <typename T>
void insertEntry(QMap<QString, T> &values, QMap<QString, T> &internalValues,
                 const QDomElement &entry, const T &value)
{
    const QString name = entry.attribute(NameAttribute);
    values.insert(name, value);
    if (entry.attribute(InternalAttribute) == "true"_s) {
        internalValues.insert(name, value);
    }
}

/// Enters the "Disabled" variants, which exist whatever they look like.
template <typename T>
void insertVariants(QMap<QString, T> &values, QMap<QString, T> &internalValues)
{
    const QMap<QString, T> originals = values;
    for (auto it = originals.cbegin(); it != originals.cend(); ++it) {
        values.insert(derivedPrefix + it.key(), it.value());
        internalValues.insert(derivedPrefix + it.key(), it.value());
    }
}

/// Finds the faults of brushes.
class BrushCheck
{
public:
    explicit BrushCheck(const SectionCheck &check)
        : m_check(check)
    {
    }

    std::optional<Fault> diagnose(const QDomElement &entry);

private:
    std::optional<Fault> colorFault(const QDomElement &element);
    std::optional<Fault> gradientFault(const QDomElement &entry);
    std::optional<Fault> pointFault(const QDomElement &entry, const QString &attribute) const;
    std::optional<Fault> stopFault(const QDomElement &stop);
    void insert(const QDomElement &entry) const;

    const SectionCheck &m_check;
    KnownNames m_colors;
    bool m_hasColors = false;
    bool m_isDerived = false;
    bool m_hasFarStop = false;
};

std::optional<Fault> BrushCheck::diagnose(const QDomElement &entry)
{
    m_isDerived = false;
    m_hasFarStop = false;
    const QString tag = entry.tagName();
    const bool isSolid = tag == SolidBrushTag;
    if (!isSolid && tag != LinearGradientBrushTag) {
        const KnownNames kinds({SolidBrushTag, LinearGradientBrushTag});
        // The name counts as defined, so that nothing misses it.
        m_check.enter(ThemeResources::getBrushesVarPrefix(), entry, true);
        return Fault{"unknown-brush-kind"_s,
                     quoted(tag) + " is no kind of brush"_s,
                     didYouMean(kinds.nearest(tag)),
                     {}};
    }
    const std::optional<Fault> fault = isSolid ? colorFault(entry) : gradientFault(entry);
    const std::optional<Fault> nameFault =
        m_check.enter(ThemeResources::getBrushesVarPrefix(), entry, true);
    // Qt prints a warning of its own about stops that are out of range.
    if (!fault && !nameFault && !m_hasFarStop) {
        insert(entry);
    }
    return nameFault ? nameFault : fault;
}

void BrushCheck::insert(const QDomElement &entry) const
{
    static const SolidBrushReader solidReader;
    static const LinearGradientBrushReader gradientReader;
    const bool isSolid = entry.tagName() == SolidBrushTag;
    const BrushReader &reader =
        isSolid ? static_cast<const BrushReader &>(solidReader) : gradientReader;
    Configuration &configuration = m_check.configuration;
    bool ok = false;
    const QBrush brush = reader.readBrush(entry, configuration.colors, ok);
    // Not so when the entry of a colour is faulty.
    if (ok) {
        insertEntry(configuration.brushes, configuration.internalBrushes, entry, brush);
    }
    if (m_isDerived) {
        configuration.derivedBrushes.insert(entry.attribute(NameAttribute));
    }
}

std::optional<Fault> BrushCheck::colorFault(const QDomElement &element)
{
    const QString name = element.text();
    const QString group = ThemeResources::getColorsVarPrefix();
    if (m_check.configuration.knows(group, name)) {
        m_isDerived = m_isDerived || !m_check.configuration.entries.value(group).contains(name);
        m_check.configuration.colorsOfBrushes.insert(name);
        m_check.configuration.colorsOfBrushes.insert(withoutDerivedPrefix(name));
        return std::nullopt;
    }
    if (!m_hasColors) {
        m_colors = KnownNames(m_check.configuration.names(group));
        m_hasColors = true;
    }
    QString suggestion = didYouMean(m_colors.nearest(name));
    if (suggestion.isEmpty() && QColor::isValidColor(name)) {
        suggestion = "Define a colour and write its name"_s;
    }
    return Fault{"unknown-color"_s, "The theme has no colour "_s + quoted(name), suggestion,
                 element};
}

std::optional<Fault> BrushCheck::gradientFault(const QDomElement &entry)
{
    checkChildren(entry, {GradientStopTag}, {}, m_check.file, m_check.findings);
    for (const QString &attribute :
         {LinearGradientBrushStartAttribute, LinearGradientBrushEndAttribute}) {
        if (std::optional<Fault> fault = pointFault(entry, attribute)) {
            return fault;
        }
    }
    std::optional<Fault> first;
    for (QDomElement stop = entry.firstChildElement(GradientStopTag); !stop.isNull();
         stop = stop.nextSiblingElement(GradientStopTag)) {
        const std::optional<Fault> fault = stopFault(stop);
        first = first ? first : fault;
    }
    return first;
}

std::optional<Fault> BrushCheck::pointFault(const QDomElement &entry,
                                            const QString &attribute) const
{
    bool ok = false;
    const QString text = entry.attribute(attribute);
    LinearGradientBrushReader().parsePoint(text, ok);
    if (ok) {
        return std::nullopt;
    }
    const bool isMissing = !entry.hasAttribute(attribute);
    return Fault{"faulty-entry"_s,
                 isMissing ? "The gradient has no attribute "_s + quoted(attribute)
                           : quoted(attribute) + " is no point: "_s + quoted(text),
                 R"(Write two numbers with a comma between them, like "0,1")"_s,
                 {}};
}

std::optional<Fault> BrushCheck::stopFault(const QDomElement &stop)
{
    bool ok = false;
    const QString text = stop.attribute(GradientStopPositionAttribute);
    const double offset = text.toDouble(&ok);
    if (!ok) {
        return Fault{"faulty-entry"_s, "The offset of the stop is no number: "_s + quoted(text),
                     "Write a number from 0 to 1"_s, stop};
    }
    if (!(offset >= 0 && offset <= 1)) {
        m_hasFarStop = true;
        m_check.findings.add("invalid-number"_s, m_check.file.place(stop),
                             "The offset "_s + quoted(text) +
                                 " is not from 0 to 1, so that the stop is ignored"_s);
    }
    return colorFault(stop);
}

} // namespace

void checkColors(const QDomElement &list, const SectionCheck &check)
{
    checkChildren(list, {ColorTag}, {}, check.file, check.findings);
    Configuration &configuration = check.configuration;
    checkEntries(
        list, ColorTag, entryNoun, check.file, check.findings,
        [&](const QDomElement &entry) -> std::optional<Fault> {
            const QString text = entry.text();
            std::optional<Fault> nameFault =
                check.enter(ThemeResources::getColorsVarPrefix(), entry, true);
            if (nameFault) {
                return nameFault;
            }
            if (!QColor::isValidColor(text)) {
                return Fault{
                    "unknown-color"_s, quoted(text) + " is no colour"_s, suggestedColor(text), {}};
            }
            insertEntry(configuration.colors, configuration.internalColors, entry, QColor(text));
            return std::nullopt;
        });
    insertVariants(configuration.colors, configuration.internalColors);
}

void checkBrushes(const QDomElement &list, const SectionCheck &check)
{
    BrushCheck brushes(check);
    checkEntries(list, QString(), entryNoun, check.file, check.findings,
                 [&brushes](const QDomElement &entry) { return brushes.diagnose(entry); });
    insertVariants(check.configuration.brushes, check.configuration.internalBrushes);
}

} // namespace TARN::ThemeTool
