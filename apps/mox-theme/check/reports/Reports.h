#pragma once

#include "check/model/Finding.h"
#include "check/reports/ReportFormat.h"
#include "text/Inks.h"

namespace TARN::ThemeTool {

/// Returns \a findings, of which those that are off are left out, as a text in \a format: one line
/// a finding and a summary for people, a JSON document (see report.schema.json), a SARIF 2.1.0 log,
/// or the commands by which GitHub annotates a change. \a themeCount is how many themes were
/// checked; people read the text in \a inks. Findings of one file stand together, and paths below
/// the current folder are written relative to it.
QString report(const QVector<Finding> &findings, ReportFormat format, int themeCount = 1,
               const Inks &inks = {});

} // namespace TARN::ThemeTool
