#include "check/reports/Reports.h"

#include "check/reports/Formats.h"

#include <QtCore/QDir>

#include <algorithm>

namespace TARN::ThemeTool {

namespace {

/// Returns \a path relative to the current folder when it lies below that, else as it is.
QString pathFromHere(const QString &path)
{
    const QDir here = QDir::current();
    const QString relative = here.relativeFilePath(here.absoluteFilePath(path));
    const bool isAbove = relative == ".."_s || relative.startsWith("../"_s);
    return isAbove ? path : relative;
}

/// Returns the findings that are not off, those of one file one after the other, in the order in
/// which the files come first.
QVector<Finding> reportedFindings(const QVector<Finding> &findings)
{
    QVector<Finding> reported;
    QStringList files;
    for (Finding finding : findings) {
        if (finding.severity == Severity::Off) {
            continue;
        }
        finding.file = pathFromHere(finding.file);
        if (!files.contains(finding.file)) {
            files.append(finding.file);
        }
        reported.append(finding);
    }
    std::stable_sort(reported.begin(), reported.end(),
                     [&files](const Finding &first, const Finding &second) {
                         return files.indexOf(first.file) < files.indexOf(second.file);
                     });
    return reported;
}

} // namespace

QString report(const QVector<Finding> &findings, ReportFormat format, int themeCount,
               const Inks &inks)
{
    const QVector<Finding> reported = reportedFindings(findings);
    switch (format) {
    case ReportFormat::Json:
        return Reports::json(reported, themeCount);
    case ReportFormat::Sarif:
        return Reports::sarif(reported);
    case ReportFormat::Github:
        return Reports::github(reported);
    case ReportFormat::Text:
        break;
    }
    return Reports::text(reported, themeCount, inks);
}

} // namespace TARN::ThemeTool
