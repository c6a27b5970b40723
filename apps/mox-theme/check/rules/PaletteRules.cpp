#include "check/rules/PaletteRules.h"

#include "check/rules/EntryList.h"
#include "check/rules/EnumKeys.h"
#include "text/DidYouMean.h"
#include "text/Literals.h"

#include <resources/ThemeResources.h>

#include <QtCore/QHash>

namespace TARN::ThemeTool {

namespace {

const QString rootTag = QStringLiteral("QPalette");
const QString roleTag = QStringLiteral("ColorRole");
const QString roleAttribute = QStringLiteral("role");
const QString groupTag = QStringLiteral("ColorGroup");
const QString groupAttribute = QStringLiteral("group");
const Noun groupNoun{QStringLiteral("group"), QStringLiteral("groups")};

/// Returns the value of \a key as the library looks it up.
template <typename Enum>
std::optional<Enum> enumValue(const QString &key)
{
    bool ok = false;
    const int value = QMetaEnum::fromType<Enum>().keyToValue(key.toUtf8().constData(), &ok);
    return ok ? std::make_optional(static_cast<Enum>(value)) : std::nullopt;
}

/// Checks the roles of a palette mapping one after the other.
class PaletteCheck
{
public:
    PaletteCheck(const ThemeFile &file, const Configuration &configuration, FindingList &findings)
        : m_file(file)
        , m_configuration(configuration)
        , m_findings(findings)
        , m_variables(configuration.names(ThemeResources::getBrushesVarPrefix()) +
                      configuration.names(ThemeResources::getColorsVarPrefix()))
    {
    }

    void checkRole(const QDomElement &role);
    const QVector<MappingEntry> &entries() const { return m_entries; }

private:
    std::optional<Fault> groupFault(const QDomElement &element) const;
    std::optional<Fault> brushFault(const QDomElement &element) const;
    void insert(const MappingEntry &entry);

    const ThemeFile &m_file;
    const Configuration &m_configuration;
    FindingList &m_findings;
    KnownNames m_variables;
    QVector<MappingEntry> m_entries;
    QHash<int, Place> m_places; // by role and group
};

void PaletteCheck::checkRole(const QDomElement &role)
{
    const QString key = role.attribute(roleAttribute);
    const auto value = enumValue<QPalette::ColorRole>(key);
    if (!value) {
        static const KnownNames known(enumKeys<QPalette::ColorRole>());
        m_findings.add("unknown-role"_s, m_file.place(role),
                       quoted(key) + " is no role of the palette"_s,
                       didYouMean(known.nearest(key)));
    } else if (*value >= QPalette::NColorRoles) {
        m_findings.add("unused-entry"_s, m_file.place(role),
                       quoted(key) + " counts the roles of the palette and is none itself"_s);
    }
    checkChildren(role, {groupTag}, {}, m_file, m_findings);
    checkEntries(
        role, groupTag, groupNoun, m_file, m_findings,
        [&](const QDomElement &element) -> std::optional<Fault> {
            std::optional<Fault> fault = groupFault(element);
            fault = fault ? fault : brushFault(element);
            if (!fault && value && *value < QPalette::NColorRoles) {
                insert({*value, *enumValue<QPalette::ColorGroup>(element.attribute(groupAttribute)),
                        element.text(), m_file.place(element)});
            }
            return fault;
        });
}

std::optional<Fault> PaletteCheck::groupFault(const QDomElement &element) const
{
    const QString key = element.attribute(groupAttribute);
    if (enumValue<QPalette::ColorGroup>(key)) {
        return std::nullopt;
    }
    static const KnownNames known(enumKeys<QPalette::ColorGroup>());
    return Fault{"unknown-group"_s,
                 quoted(key) + " is no group of the palette"_s,
                 didYouMean(known.nearest(key)),
                 {}};
}

std::optional<Fault> PaletteCheck::brushFault(const QDomElement &element) const
{
    const QString text = element.text();
    if (!text.startsWith(u'@')) {
        if (QColor::isValidColor(text)) {
            return std::nullopt;
        }
        const bool isName =
            m_configuration.knows(ThemeResources::getBrushesVarPrefix(), text.trimmed()) ||
            m_configuration.knows(ThemeResources::getColorsVarPrefix(), text.trimmed());
        static const KnownNames keywords(QColor::colorNames());
        return Fault{"unknown-color"_s,
                     quoted(text) + " is no colour"_s,
                     didYouMean(isName ? "@"_s + text.trimmed() : keywords.nearest(text)),
                     {}};
    }
    const QString name = text.mid(1);
    // Nothing can be said about names when the file that defines them was not read.
    if (!m_configuration.wasRead ||
        m_configuration.knows(ThemeResources::getBrushesVarPrefix(), name) ||
        m_configuration.knows(ThemeResources::getColorsVarPrefix(), name)) {
        return std::nullopt;
    }
    const QString meant = m_variables.nearest(name);
    return Fault{"unknown-color"_s,
                 "The theme has neither a brush nor a colour "_s + quoted(name),
                 meant.isEmpty() ? QString() : didYouMean("@"_s + meant),
                 {}};
}

/// Appends \a entry, and reports it when it replaces an earlier one of the same role and group.
void PaletteCheck::insert(const MappingEntry &entry)
{
    constexpr int mostGroups = 16;
    const int key = entry.role * mostGroups + entry.group;
    const auto earlier = m_places.constFind(key);
    if (earlier != m_places.cend()) {
        m_findings.add("unused-entry"_s, *earlier,
                       "The same role and group are set again in line %1"_s.arg(entry.place.line));
    }
    m_places.insert(key, entry.place);
    m_entries.append(entry);
}

} // namespace

QVector<MappingEntry> checkPalette(const ThemeFile &file, const Configuration &configuration,
                                   FindingList &findings)
{
    file.reportFault(findings);
    if (!file.isFine()) {
        return {};
    }
    const QDomElement root = file.root();
    if (root.tagName() != rootTag) {
        findings.add("unknown-section"_s, file.place(root),
                     "The outermost element is "_s + quoted(root.tagName()) +
                         ", so that nothing of the file is read"_s,
                     "Name it "_s + quoted(rootTag));
        return {};
    }
    checkChildren(root, {roleTag}, {}, file, findings);
    PaletteCheck check(file, configuration, findings);
    for (QDomElement role = root.firstChildElement(roleTag); !role.isNull();
         role = role.nextSiblingElement(roleTag)) {
        check.checkRole(role);
    }
    return check.entries();
}

} // namespace TARN::ThemeTool
