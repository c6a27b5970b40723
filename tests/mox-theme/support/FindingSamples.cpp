#include "FindingSamples.h"

#include <QtCore/QDir>
#include <QtCore/QJsonDocument>

#include <support/Text.h>

using namespace TARN::ThemeTool;

QString strangeFile()
{
    return QString::fromUtf8("thèmes/My Theme: 50%, #1/config.xml");
}

Finding finding(const char *rule, Severity severity, const QString &file, int line, int column)
{
    Finding finding;
    finding.rule = text(rule);
    finding.severity = severity;
    finding.file = file;
    finding.line = line;
    finding.column = column;
    finding.text = text("Something is wrong");
    return finding;
}

Finding suggesting(Finding finding, const QString &suggestion)
{
    finding.suggestion = suggestion;
    return finding;
}

QVector<Finding> everyShape()
{
    return {
        finding("low-contrast", Severity::Error, strangeFile(), 12, 5),
        suggesting(finding("unused-entry", Severity::Warning, strangeFile(), 3),
                   QString::fromUtf8("Remove “it”\nor\tuse it")),
        finding("missing-file", Severity::Error, QDir::current().absoluteFilePath(text("Dark"))),
        finding("missing-name", Severity::Error, text("/else where/theme.xml"), 2, 1),
        finding("internal-value", Severity::Warning, text("../Light/config.xml"), 7, 70000),
    };
}

QJsonObject jsonReport(const QVector<Finding> &findings, ReportFormat format)
{
    QJsonParseError error{};
    const QByteArray document = report(findings, format).toUtf8();
    const QJsonObject object = QJsonDocument::fromJson(document, &error).object();
    return error.error == QJsonParseError::NoError ? object : QJsonObject();
}
