#include "check/model/RuleTable.h"

#include <algorithm>

namespace TARN::ThemeTool {

namespace {

constexpr Severity error = Severity::Error;
constexpr Severity warning = Severity::Warning;

struct Row
{
    const char *name;
    Severity severity;
    const char *description;
};

// Sorted by name.
constexpr Row rows[] = {
    {"duplicate-entry", error,
     R"(An entry has the name of an earlier one, or the name "Disabled" and that of an earlier )"
     "one, which the library gives to the variant that it derives itself; the library stops "
     "reading the list there."},
    {"faulty-entry", error,
     "An entry has no name, lacks what belongs to it or holds what cannot be read; the library "
     "stops reading the list there, and what follows is lost."},
    {"image-folder", error,
     "The folder of the theme's images is not named after the theme, or its index leaves out "
     "the icons; the library then shows its compiled-in images."},
    {"internal-value", warning,
     R"(The attribute "internal" has another value than "true" or "false"; the library )"
     R"(takes only "true", spelt exactly so, for true.)"},
    {"invalid-font", error,
     "The font section lacks its family or one of its sizes, or a font file cannot be loaded; "
     "the library falls back on the default font."},
    {"invalid-number", error,
     "A number cannot be read or is out of its range; the library reads 0 for what is no "
     "number and ignores what is out of range."},
    {"low-contrast", error,
     "Text differs too little from its background (less than 4.5:1, disabled text less than "
     "2:1), or an icon or an outline does (less than 3:1)."},
    {"missing-file", error,
     "A file that belongs to every theme is missing or cannot be opened; the library carries "
     "on without its values."},
    {"missing-name", error,
     "The theme's description gives no display name, after which the library looks for the "
     "theme's images."},
    {"missing-variable", error,
     "The theme does not define a name that the library asks for; the library then paints "
     "nothing, or takes 0 for the value."},
    {"not-well-formed", error, "A file is not well-formed XML; the library reads nothing of it."},
    {"unknown-brush-kind", error,
     "A brush is of a kind that the library does not know; the library stops reading the "
     "brushes there."},
    {"unknown-color", error,
     "A text is no colour, or names a colour or brush that the theme does not define; the "
     "library stops reading the list or the palette role there."},
    {"unknown-group", error,
     "A palette entry is for a colour group that does not exist; the library leaves out the "
     "rest of its role."},
    {"unknown-role", error,
     "A palette entry is for a colour role that does not exist; the library leaves it out."},
    {"unknown-section", error,
     "An element stands where the library does not look for it, or no longer does since it "
     "takes the first of that name; the library ignores it with all that it holds."},
    {"unknown-weight", error,
     R"(The font's weight is none that the library knows; the library takes "Normal".)"},
    {"unreadable-image", error,
     "An icon or a cursor cannot be loaded, links to another file or has too many pixels; the "
     "library shows nothing in its place."},
    {"unresolved-placeholder", error,
     "A stylesheet has a placeholder for a variable that the theme does not define or that has "
     "no text; the library leaves it as it stands or replaces it by nothing."},
    {"unused-entry", warning, "The theme defines a value that nothing asks for."},
};

QVector<Rule> madeOfRows()
{
    QVector<Rule> made;
    for (const Row &row : rows) {
        made.append(
            {QString::fromUtf8(row.name), row.severity, QString::fromUtf8(row.description)});
    }
    return made;
}

} // namespace

const QVector<Rule> &rules()
{
    static const QVector<Rule> all = madeOfRows();
    return all;
}

const Rule *findRule(const QString &name)
{
    const auto *const found = std::lower_bound(
        rules().begin(), rules().end(), name,
        [](const Rule &rule, const QString &wanted) { return rule.name < wanted; });
    return found != rules().end() && found->name == name ? &*found : nullptr;
}

} // namespace TARN::ThemeTool
