#pragma once

#include "commands/Commands.h"
#include "compare/Differences.h"

namespace TARN::ThemeTool::DiffReports {

/// Returns \a differences for people: a line each under the headings of their sections.
QString text(const Differences &differences);

/// Returns \a differences between the themes that \a options name as a JSON document; see
/// diff.schema.json.
QString json(const Differences &differences, const DiffOptions &options);

} // namespace TARN::ThemeTool::DiffReports
