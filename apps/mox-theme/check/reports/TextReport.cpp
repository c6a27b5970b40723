#include "check/reports/Formats.h"
#include "text/Wording.h"

namespace TARN::ThemeTool::Reports {

namespace {

/// Returns where \a finding is, as editors and terminals recognise it.
QString place(const Finding &finding)
{
    QString place = onOneLine(finding.file);
    if (finding.line > 0) {
        place += ":"_s + QString::number(finding.line);
        if (finding.column > 0) {
            place += ":"_s + QString::number(finding.column);
        }
    }
    return place;
}

QString entry(const Finding &finding, const Inks &inks)
{
    const Ink ink = finding.severity == Severity::Error ? Ink::Red : Ink::Yellow;
    QString entry = place(finding) + ": "_s + inks.inked(word(finding.severity) + ":"_s, ink) +
                    " "_s + onOneLine(finding.text) + " ["_s + inks.inked(finding.rule, Ink::Bold) +
                    "]\n"_s;
    if (!finding.suggestion.isEmpty()) {
        entry += "    "_s + inks.inked(onOneLine(finding.suggestion), Ink::Faint) + "\n"_s;
    }
    return entry;
}

QString summary(const QVector<Finding> &findings, int themeCount, const Inks &inks)
{
    const QString where = " in "_s + counted(themeCount, "theme"_s, "themes"_s);
    if (findings.isEmpty()) {
        return inks.inked("No findings"_s, Ink::Green) + where + "\n"_s;
    }
    const int errors = count(findings, Severity::Error);
    const int warnings = count(findings, Severity::Warning);
    QStringList counts;
    if (errors > 0) {
        counts.append(inks.inked(counted(errors, "error"_s, "errors"_s), Ink::Red));
    }
    if (warnings > 0) {
        counts.append(inks.inked(counted(warnings, "warning"_s, "warnings"_s), Ink::Yellow));
    }
    return counts.join(", "_s) + where + "\n"_s;
}

} // namespace

QString text(const QVector<Finding> &findings, int themeCount, const Inks &inks)
{
    QString text;
    QString file;
    for (const Finding &finding : findings) {
        if (!text.isEmpty() && finding.file != file) {
            text += "\n"_s;
        }
        file = finding.file;
        text += entry(finding, inks);
    }
    if (!text.isEmpty()) {
        text += "\n"_s;
    }
    return text + summary(findings, themeCount, inks);
}

} // namespace TARN::ThemeTool::Reports
