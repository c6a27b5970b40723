#include "check/reports/Formats.h"

#include <QtCore/QStringList>

namespace TARN::ThemeTool::Reports {

namespace {

/// Returns \a text as the text of a command, which ends with its line.
QString escapedText(QString text)
{
    return text.replace("%"_s, "%25"_s).replace("\r"_s, "%0D"_s).replace("\n"_s, "%0A"_s);
}

/// Returns \a text as the value of a property, which commas part and a colon ends.
QString escapedProperty(const QString &text)
{
    return escapedText(text).replace(":"_s, "%3A"_s).replace(","_s, "%2C"_s);
}

QString command(const Finding &finding)
{
    QStringList properties{"file="_s + escapedProperty(finding.file)};
    if (finding.line > 0) {
        properties.append("line="_s + QString::number(finding.line));
        if (finding.column > 0) {
            properties.append("col="_s + QString::number(finding.column));
        }
    }
    properties.append("title="_s + escapedProperty(finding.rule));

    QString message = finding.text;
    if (!finding.suggestion.isEmpty()) {
        message += "\n"_s + finding.suggestion;
    }
    return "::"_s + word(finding.severity) + " "_s + properties.join(","_s) + "::"_s +
           escapedText(message) + "\n"_s;
}

} // namespace

QString github(const QVector<Finding> &findings)
{
    QString commands;
    for (const Finding &finding : findings) {
        commands += command(finding);
    }
    return commands;
}

} // namespace TARN::ThemeTool::Reports
