#include "check/model/FindingList.h"

#include "check/model/RuleTable.h"
#include "text/Literals.h"

#include <algorithm>
#include <tuple>

namespace TARN::ThemeTool {

QString quoted(const QString &name)
{
    constexpr int longest = 80;
    QString shown = name.size() > longest ? name.left(longest) + "..."_s : name;
    for (QChar &c : shown) {
        c = c.isPrint() ? c : QChar(u' ');
    }
    return QLatin1Char('"') + shown + QLatin1Char('"');
}

QString didYouMean(const QString &name)
{
    return name.isEmpty() ? QString() : "Did you mean "_s + quoted(name) + "?"_s;
}

FindingList::FindingList(const CheckSettings &settings)
    : m_severities(settings.rules)
{
}

Severity FindingList::severity(const QString &rule) const
{
    const auto chosen = m_severities.constFind(rule);
    if (chosen != m_severities.cend()) {
        return *chosen;
    }
    const Rule *known = findRule(rule);
    return known ? known->severity : Severity::Error;
}

bool FindingList::wants(const QString &rule) const
{
    return severity(rule) != Severity::Off;
}

void FindingList::add(const QString &rule, const Place &place, const QString &text,
                      const QString &suggestion)
{
    if (wants(rule)) {
        m_findings.append(
            {rule, severity(rule), place.file, place.line, place.column, text, suggestion});
    }
}

QVector<Finding> FindingList::sorted(const QStringList &paths) const
{
    QVector<Finding> findings = m_findings;
    const auto key = [&paths](const Finding &finding) {
        const int rank = paths.indexOf(finding.file);
        // Unlisted files have the rank -1, which is the last one here.
        return std::make_tuple(static_cast<uint>(rank), finding.file, finding.line, finding.column);
    };
    std::stable_sort(
        findings.begin(), findings.end(),
        [&key](const Finding &first, const Finding &second) { return key(first) < key(second); });
    return findings;
}

} // namespace TARN::ThemeTool
