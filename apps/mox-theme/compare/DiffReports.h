#pragma once

#include "compare/Differences.h"
#include "text/Inks.h"

namespace TARN::ThemeTool::DiffReports {

/// Returns \a differences for people, in \a inks: a line each under the headings of their sections.
QString text(const Differences &differences, const Inks &inks);

/// Returns \a differences between the themes in the folders \a before and \a after as a JSON
/// document; see diff.schema.json.
QString json(const Differences &differences, const QString &before, const QString &after);

} // namespace TARN::ThemeTool::DiffReports
