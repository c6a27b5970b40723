#include "check/rules/EntryList.h"

#include "text/DidYouMean.h"
#include "text/Literals.h"

#include <QtCore/QSet>

namespace TARN::ThemeTool {

namespace {

int countEntries(const QDomElement &list, const QString &tag)
{
    int count = 0;
    for (QDomElement entry = list.firstChildElement(tag); !entry.isNull();
         entry = entry.nextSiblingElement(tag)) {
        ++count;
    }
    return count;
}

} // namespace

QString lostEntries(int count, const Noun &noun)
{
    if (count <= 0) {
        return {};
    }
    return count == 1 ? "; the "_s + noun.one + " after it is lost"_s
                      : "; the %1 %2 after it are lost"_s.arg(QString::number(count), noun.many);
}

void checkEntries(const QDomElement &list, const QString &tag, const Noun &noun,
                  const ThemeFile &file, FindingList &findings, const Diagnosis &diagnose)
{
    int left = countEntries(list, tag);
    bool isCut = false;
    for (QDomElement entry = list.firstChildElement(tag); !entry.isNull();
         entry = entry.nextSiblingElement(tag)) {
        --left;
        const std::optional<Fault> fault = diagnose(entry);
        if (!fault) {
            continue;
        }
        const QString lost = isCut ? QString() : lostEntries(left, noun);
        findings.add(fault->rule, file.place(fault->element.isNull() ? entry : fault->element),
                     fault->text + lost, fault->suggestion);
        isCut = true;
    }
}

void checkChildren(const QDomElement &parent, const QStringList &tags, const QStringList &single,
                   const ThemeFile &file, FindingList &findings)
{
    QSet<QString> seen;
    for (QDomElement child = parent.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        const QString tag = child.tagName();
        const QString parentName = quoted(parent.tagName());
        if (!tags.contains(tag)) {
            findings.add("unknown-section"_s, file.place(child),
                         "The library does not look for "_s + quoted(tag) + " in "_s + parentName,
                         didYouMean(KnownNames(tags).nearest(tag)));
        } else if (single.contains(tag) && seen.contains(tag)) {
            findings.add("unknown-section"_s, file.place(child),
                         "The library reads only the first "_s + quoted(tag) + " in "_s +
                             parentName,
                         "Move what it holds into the first one"_s);
        }
        seen.insert(tag);
    }
}

} // namespace TARN::ThemeTool
