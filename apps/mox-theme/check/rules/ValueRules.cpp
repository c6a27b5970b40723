#include "check/rules/ConfigurationRules.h"
#include "check/rules/EnumKeys.h"
#include "text/DidYouMean.h"
#include "text/Literals.h"

#include <readers/ConfigurationTags.h>
#include <resources/ThemeResources.h>

#include <QtGui/QFont>

namespace TARN::ThemeTool {

namespace {

const Noun entryNoun{QStringLiteral("entry"), QStringLiteral("entries")};
const Noun sizeNoun{QStringLiteral("size"), QStringLiteral("sizes")};

const QStringList sizeTags{SmallSizeTag, BaseSizeTag, MediumSizeTag, LargeSizeTag};

void reportNumber(const SectionCheck &check, const QDomElement &element, const QString &text)
{
    check.findings.add("invalid-number"_s, check.file.place(element), text);
}

/// Returns what \a element is called in sentences: its name, else its tag.
QString titleOf(const QDomElement &element)
{
    const QString name = element.attribute(NameAttribute);
    return quoted(name.isEmpty() ? element.tagName() : name);
}

/// Returns the integer that the library reads from \a element, and reports a text that is none or
/// that is less than \a least.
int checkInteger(const SectionCheck &check, const QDomElement &element, int least)
{
    bool ok = false;
    const QString text = element.text();
    const int value = text.toInt(&ok);
    if (!ok) {
        reportNumber(check, element,
                     "The value "_s + quoted(text) + " of "_s + titleOf(element) +
                         " is no whole number and is read as 0"_s);
    } else if (value < least) {
        reportNumber(check, element,
                     "The value of "_s + titleOf(element) +
                         " has to be at least %1, not %2"_s.arg(least).arg(value));
    }
    return value;
}

double checkOpacity(const SectionCheck &check, const QDomElement &element)
{
    bool ok = false;
    const QString text = element.text();
    const double value = text.toDouble(&ok);
    if (!ok) {
        reportNumber(check, element,
                     "The value "_s + quoted(text) + " of "_s + titleOf(element) +
                         " is no number and is read as 0"_s);
    } else if (!(value >= 0 && value <= 1)) {
        reportNumber(check, element,
                     "The value of "_s + titleOf(element) + " has to be from 0 to 1, not "_s +
                         quoted(text));
    }
    return value;
}

/// Checks a list of named numbers, which \a readValue reads.
template <typename T, typename ReadValue>
void checkNumbers(const QDomElement &section, const QString &tag, const QString &group,
                  const SectionCheck &check, QMap<QString, T> &values, ReadValue readValue)
{
    checkChildren(section, {tag}, {}, check.file, check.findings);
    checkEntries(section, tag, entryNoun, check.file, check.findings,
                 [&](const QDomElement &entry) -> std::optional<Fault> {
                     const T value = readValue(entry);
                     std::optional<Fault> fault = check.enter(group, entry);
                     if (!fault) {
                         values.insert(entry.attribute(NameAttribute), value);
                     }
                     return fault;
                 });
}

void checkWeight(const QDomElement &section, const SectionCheck &check)
{
    const QDomElement weight = section.firstChildElement(FontWeightTag);
    const QString text = weight.text();
    static const QStringList names = enumKeys<QFont::Weight>();
    if (weight.isNull() || names.contains(text)) {
        return;
    }
    const QString suggestion = didYouMean(KnownNames(names).nearest(text));
    check.findings.add("unknown-weight"_s, check.file.place(weight),
                       quoted(text) + R"( is no weight of a font and is read as "Normal")"_s,
                       suggestion.isEmpty() ? "Use one of "_s + names.join(", "_s) : suggestion);
}

/// Returns what is wrong with the size \a tag of the font \a section; an empty text when nothing
/// keeps the library from reading it.
QString fontSizeFault(const QDomElement &section, const QString &tag)
{
    const QDomElement element = section.firstChildElement(tag);
    bool ok = false;
    element.text().toInt(&ok);
    if (ok) {
        return {};
    }
    return element.isNull() ? "The font has no "_s + quoted(tag)
                            : "The size "_s + quoted(element.text()) + " of "_s + quoted(tag) +
                                  " is no whole number"_s;
}

void checkFontSizes(const QDomElement &section, bool isLost, const SectionCheck &check)
{
    for (int i = 0; i < sizeTags.size(); ++i) {
        const QString &tag = sizeTags.at(i);
        const QDomElement element = section.firstChildElement(tag);
        const QString fault = fontSizeFault(section, tag);
        if (fault.isEmpty()) {
            checkInteger(check, element, 1);
            continue;
        }
        const int after = isLost ? 0 : sizeTags.size() - 1 - i;
        check.findings.add("invalid-font"_s, check.file.place(element.isNull() ? section : element),
                           fault + lostEntries(after, sizeNoun), "Write a size in points"_s);
        isLost = true;
    }
}

} // namespace

void checkFactors(const QDomElement &section, const SectionCheck &check)
{
    checkNumbers(section, FactorTag, ThemeResources::getDisabledFactorsVarPrefix(), check,
                 check.configuration.factors,
                 [&check](const QDomElement &entry) { return checkInteger(check, entry, 1); });
}

void checkOpacities(const QDomElement &section, const SectionCheck &check)
{
    checkNumbers(section, OpacityTag, ThemeResources::getOpacitiesVarPrefix(), check,
                 check.configuration.opacities,
                 [&check](const QDomElement &entry) { return checkOpacity(check, entry); });
}

void checkFont(const QDomElement &section, const SectionCheck &check)
{
    const Place place = check.configuration.lists.value(ThemeResources::getFontsVarPrefix());
    if (section.isNull()) {
        check.findings.add("invalid-font"_s, place,
                           "The theme has no section "_s + quoted(FontRootTag));
        return;
    }
    const QStringList tags = QStringList{FontFamilyTag, FontWeightTag} + sizeTags;
    checkChildren(section, tags, tags, check.file, check.findings);
    const bool hasFamily = !section.firstChildElement(FontFamilyTag).isNull();
    if (!hasFamily) {
        check.findings.add("invalid-font"_s, place,
                           "The font has no family, so that none of its sizes is read"_s);
    }
    checkWeight(section, check);
    checkFontSizes(section, !hasFamily, check);
}

void checkCornerRadii(const QDomElement &section, const SectionCheck &check)
{
    const QString group = ThemeResources::getCornerRadiusVarPrefix();
    const Place place = check.configuration.lists.value(group);
    QMap<QString, Place> &entries = check.configuration.entries[group];
    if (section.isNull()) {
        check.findings.add("faulty-entry"_s, place,
                           "The theme has no section "_s + quoted(CornerRadiusRootTag));
    }
    checkChildren(section, sizeTags, sizeTags, check.file, check.findings);
    bool isLost = false;
    for (int i = 0; i < sizeTags.size(); ++i) {
        const QString &tag = sizeTags.at(i);
        const QDomElement element = section.firstChildElement(tag);
        if (!element.isNull()) {
            check.configuration.cornerRadii.insert(tag, checkInteger(check, element, 0));
            entries.insert(tag, check.file.place(element));
            continue;
        }
        // The medium size may be left out; it is missed like every other variable then.
        if (tag == MediumSizeTag && !section.isNull()) {
            check.configuration.cornerRadii.insert(tag, 0);
            continue;
        }
        entries.insert(tag, place);
        if (!section.isNull()) {
            const int after = isLost ? 0 : sizeTags.size() - 1 - i;
            check.findings.add("faulty-entry"_s, place,
                               "The corner radii have no "_s + quoted(tag) +
                                   lostEntries(after, sizeNoun));
            isLost = true;
        }
    }
}

} // namespace TARN::ThemeTool
