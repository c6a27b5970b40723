#include "check/rules/DescriptionRules.h"

#include "check/rules/EntryList.h"
#include "text/Literals.h"

namespace TARN::ThemeTool {

namespace {

const QString rootTag = QStringLiteral("theme");
const QString nameTag = QStringLiteral("name");

} // namespace

Description checkDescription(const ThemeFile &file, FindingList &findings)
{
    file.reportFault(findings);
    if (!file.isFine()) {
        return {};
    }
    const QString rule = "missing-name"_s;
    const QDomElement root = file.root();
    if (root.tagName() != rootTag) {
        findings.add(rule, file.place(root),
                     "The outermost element is "_s + quoted(root.tagName()) +
                         ", so that the theme has no name"_s,
                     "Name it "_s + quoted(rootTag));
        return {};
    }
    checkChildren(root, {nameTag}, {nameTag}, file, findings);
    const QDomElement name = root.firstChildElement(nameTag);
    if (name.isNull()) {
        findings.add(rule, file.place(root), "The theme has no element "_s + quoted(nameTag));
        return {};
    }
    if (name.text().isEmpty()) {
        findings.add(rule, file.place(name), "The theme's name is empty"_s);
    }
    return {name.text(), file.place(name)};
}

} // namespace TARN::ThemeTool
