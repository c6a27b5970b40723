#include "check/reports/Formats.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace TARN::ThemeTool::Reports {

namespace {

/// Counts up when a member is renamed or removed, or means something else; not when one is added.
constexpr int formatVersion = 1;

QJsonValue numberOrNull(int number)
{
    return number > 0 ? QJsonValue(number) : QJsonValue();
}

QJsonValue textOrNull(const QString &text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

QJsonObject object(const Finding &finding)
{
    return {{"file"_s, finding.file},
            {"line"_s, numberOrNull(finding.line)},
            {"column"_s, numberOrNull(finding.column)},
            {"rule"_s, finding.rule},
            {"severity"_s, word(finding.severity)},
            {"message"_s, finding.text},
            {"suggestion"_s, textOrNull(finding.suggestion)}};
}

} // namespace

QString json(const QVector<Finding> &findings, int themeCount)
{
    QJsonArray entries;
    for (const Finding &finding : findings) {
        entries.append(object(finding));
    }
    const QJsonObject summary{{"themes"_s, themeCount},
                              {"errors"_s, count(findings, Severity::Error)},
                              {"warnings"_s, count(findings, Severity::Warning)}};
    const QJsonObject report{
        {"version"_s, formatVersion}, {"findings"_s, entries}, {"summary"_s, summary}};
    return QString::fromUtf8(QJsonDocument(report).toJson());
}

} // namespace TARN::ThemeTool::Reports
