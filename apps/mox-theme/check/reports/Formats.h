#pragma once

#include "check/model/Finding.h"
#include "text/Inks.h"
#include "text/Literals.h"

#include <algorithm>

/// The formats in which findings are reported; see report(). Every function takes findings that are
/// in order and not off, with paths as they are to be written.
namespace TARN::ThemeTool::Reports {

QString text(const QVector<Finding> &findings, int themeCount, const Inks &inks);
QString json(const QVector<Finding> &findings, int themeCount);
QString sarif(const QVector<Finding> &findings);
QString github(const QVector<Finding> &findings);

/// Returns the word for \a severity that every format shares.
inline QString word(Severity severity)
{
    return severity == Severity::Error ? "error"_s : "warning"_s;
}

/// Returns how many of \a findings are of \a severity.
inline int count(const QVector<Finding> &findings, Severity severity)
{
    return static_cast<int>(
        std::count_if(findings.cbegin(), findings.cend(),
                      [severity](const Finding &finding) { return finding.severity == severity; }));
}

} // namespace TARN::ThemeTool::Reports
