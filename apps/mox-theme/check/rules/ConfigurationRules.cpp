#include "check/rules/ConfigurationRules.h"

#include "text/Literals.h"

#include <readers/ConfigurationTags.h>
#include <resources/ThemeResources.h>

namespace TARN::ThemeTool {

namespace {

QStringList sectionTags()
{
    return {FactorsRootTag, PaletteRootTag, FontRootTag, OpacitiesRootTag, CornerRadiusRootTag};
}

/// Returns where \a element stands, or where \a parent does when there is no such element.
Place placeOf(const QDomElement &element, const QDomElement &parent, const ThemeFile &file)
{
    return file.place(element.isNull() ? parent : element);
}

/// Reports values of the attribute "internal" that look as if they were true.
void checkInternal(const QDomElement &entry, const SectionCheck &check)
{
    const QString value = entry.attribute(InternalAttribute);
    const bool isPlain = value.isEmpty() || value == "true"_s || value == "false"_s;
    static const QStringList otherWordsForFalse{"false"_s, "0"_s, "no"_s, "off"_s};
    if (isPlain || otherWordsForFalse.contains(value.trimmed(), Qt::CaseInsensitive)) {
        return;
    }
    check.findings.add("internal-value"_s, check.file.place(entry),
                       "The value "_s + quoted(value) + R"( of "internal" does not make )"_s +
                           quoted(entry.attribute(NameAttribute)) + " internal"_s,
                       R"(Write "true", or leave the attribute out)"_s);
}

std::optional<Fault> duplicateOf(const QString &name, const Place &earlier)
{
    return Fault{"duplicate-entry"_s,
                 quoted(name) + " has been defined before, in line %1"_s.arg(earlier.line),
                 "Remove one of the two"_s,
                 {}};
}

std::optional<Fault> duplicateOfVariant(const QString &name, const Place &earlier)
{
    return Fault{"duplicate-entry"_s,
                 quoted(name) +
                     " is the name that the library gives to the disabled variant of "_s +
                     quoted(withoutDerivedPrefix(name)) + " in line %1"_s.arg(earlier.line),
                 R"(Put "Disabled" at the end of the name)"_s,
                 {}};
}

} // namespace

std::optional<Fault> SectionCheck::enter(const QString &group, const QDomElement &entry,
                                         bool withVariants) const
{
    const QString name = entry.attribute(NameAttribute);
    if (name.isEmpty()) {
        const bool hasName = entry.hasAttribute(NameAttribute);
        return Fault{"faulty-entry"_s,
                     "The entry "_s + quoted(entry.tagName()) +
                         (hasName ? " has an empty name"_s : R"( has no attribute "name")"_s),
                     {},
                     {}};
    }
    if (withVariants) {
        checkInternal(entry, *this);
    }
    QMap<QString, Place> &entries = configuration.entries[group];
    const auto same = entries.constFind(name);
    if (same != entries.cend()) {
        return duplicateOf(name, *same);
    }
    if (withVariants && name.startsWith(derivedPrefix)) {
        const auto original = entries.constFind(withoutDerivedPrefix(name));
        if (original != entries.cend()) {
            return duplicateOfVariant(name, *original);
        }
    }
    entries.insert(name, file.place(entry));
    return std::nullopt;
}

Configuration checkConfiguration(const ThemeFile &file, FindingList &findings)
{
    Configuration configuration;
    file.reportFault(findings);
    if (!file.isFine()) {
        return configuration;
    }
    const QDomElement root = file.root();
    if (root.tagName() != ConfigRootTag) {
        findings.add("faulty-entry"_s, file.place(root),
                     "The outermost element is "_s + quoted(root.tagName()) +
                         ", so that nothing of the file is read"_s,
                     "Name it "_s + quoted(ConfigRootTag));
        return configuration;
    }
    configuration.wasRead = true;
    checkChildren(root, sectionTags(), sectionTags(), file, findings);

    const QDomElement palette = root.firstChildElement(PaletteRootTag);
    const QStringList lists{ColorsListTag, BrushesListTag};
    checkChildren(palette, lists, lists, file, findings);
    const Place palettePlace = placeOf(palette, root, file);

    const SectionCheck check{file, findings, configuration};
    const auto section = [&](const QDomElement &element, const QString &group, const Place &parent,
                             auto checkSection) {
        configuration.lists[group] = element.isNull() ? parent : file.place(element);
        checkSection(element, check);
    };
    const Place rootPlace = file.place(root);
    section(root.firstChildElement(FactorsRootTag), ThemeResources::getDisabledFactorsVarPrefix(),
            rootPlace, checkFactors);
    section(palette.firstChildElement(ColorsListTag), ThemeResources::getColorsVarPrefix(),
            palettePlace, checkColors);
    section(palette.firstChildElement(BrushesListTag), ThemeResources::getBrushesVarPrefix(),
            palettePlace, checkBrushes);
    section(root.firstChildElement(FontRootTag), ThemeResources::getFontsVarPrefix(), rootPlace,
            checkFont);
    section(root.firstChildElement(OpacitiesRootTag), ThemeResources::getOpacitiesVarPrefix(),
            rootPlace, checkOpacities);
    section(root.firstChildElement(CornerRadiusRootTag), ThemeResources::getCornerRadiusVarPrefix(),
            rootPlace, checkCornerRadii);
    return configuration;
}

} // namespace TARN::ThemeTool
