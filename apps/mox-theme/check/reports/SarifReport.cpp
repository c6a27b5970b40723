#include "check/model/RuleTable.h"
#include "check/reports/Formats.h"

#include <QtCore/QDir>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QUrl>

namespace TARN::ThemeTool::Reports {

namespace {

/// The folder to which relative paths are relative; readers know this name for the top of a
/// checkout. Its own path is left to them, so that a log says the same wherever it was made.
QString baseId()
{
    return "%SRCROOT%"_s;
}

QString sentence(const QString &text)
{
    return text.endsWith("."_s) ? text : text + "."_s;
}

QJsonObject message(const QString &text)
{
    return {{"text"_s, text}};
}

QString level(Severity severity)
{
    return severity == Severity::Off ? "none"_s : word(severity);
}

QJsonObject describedRule(const Rule &rule)
{
    return {{"id"_s, rule.name},
            {"shortDescription"_s, message(sentence(rule.description))},
            {"defaultConfiguration"_s, QJsonObject{{"level"_s, level(rule.severity)}}}};
}

QJsonObject artifactLocation(const QString &path)
{
    if (QDir::isRelativePath(path) && !path.startsWith("../"_s)) {
        // A colon would end the name of a scheme.
        const QByteArray encoded = QUrl::toPercentEncoding(path, "/");
        return {{"uri"_s, QString::fromLatin1(encoded)}, {"uriBaseId"_s, baseId()}};
    }
    const QString absolute = QDir::cleanPath(QDir::current().absoluteFilePath(path));
    const QUrl url = QUrl::fromLocalFile(absolute);
    return {{"uri"_s, QString::fromLatin1(url.toEncoded(QUrl::FullyEncoded))}};
}

QJsonObject location(const Finding &finding)
{
    QJsonObject physical{{"artifactLocation"_s, artifactLocation(finding.file)}};
    if (finding.line > 0) {
        QJsonObject region{{"startLine"_s, finding.line}};
        if (finding.column > 0) {
            region.insert("startColumn"_s, finding.column);
        }
        physical.insert("region"_s, region);
    }
    return {{"physicalLocation"_s, physical}};
}

int ruleIndex(const QString &name)
{
    const Rule *rule = findRule(name);
    return rule ? static_cast<int>(rule - rules().constData()) : -1;
}

QJsonObject result(const Finding &finding)
{
    QString text = sentence(finding.text);
    if (!finding.suggestion.isEmpty()) {
        text += " "_s + sentence(finding.suggestion);
    }
    QJsonObject result{{"ruleId"_s, finding.rule},
                       {"level"_s, level(finding.severity)},
                       {"message"_s, message(text)},
                       {"locations"_s, QJsonArray{location(finding)}}};
    const int index = ruleIndex(finding.rule);
    if (index >= 0) {
        result.insert("ruleIndex"_s, index);
    }
    return result;
}

QJsonObject tool()
{
    QJsonArray described;
    for (const Rule &rule : rules()) {
        described.append(describedRule(rule));
    }
    const QJsonObject driver{{"name"_s, "mox-theme"_s},
                             {"version"_s, QStringLiteral(MOX_THEME_VERSION)},
                             {"rules"_s, described}};
    return {{"driver"_s, driver}};
}

} // namespace

QString sarif(const QVector<Finding> &findings)
{
    QJsonArray results;
    for (const Finding &finding : findings) {
        results.append(result(finding));
    }
    const QJsonObject base{
        {"description"_s, message("The folder in which the themes were checked."_s)}};
    const QJsonObject run{{"tool"_s, tool()},
                          {"columnKind"_s, "utf16CodeUnits"_s},
                          {"originalUriBaseIds"_s, QJsonObject{{baseId(), base}}},
                          {"results"_s, results}};
    const QJsonObject log{{"$schema"_s,
                           "https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/schemas/"
                           "sarif-schema-2.1.0.json"_s},
                          {"version"_s, "2.1.0"_s},
                          {"runs"_s, QJsonArray{run}}};
    return QString::fromUtf8(QJsonDocument(log).toJson());
}

} // namespace TARN::ThemeTool::Reports
