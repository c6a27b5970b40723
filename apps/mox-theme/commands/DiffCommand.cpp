#include "command_line/Terminal.h"
#include "commands/Commands.h"
#include "compare/DiffReports.h"

namespace TARN::ThemeTool {

namespace {

/// Reads the theme in \a directory into \a values and tells what cannot be read of it. Returns
/// whether it can be compared.
bool read(const QString &directory, ThemeValues &values)
{
    const QString problem = readThemeValues(directory, values);
    if (!problem.isEmpty()) {
        fail(problem);
        return false;
    }
    for (const QString &note : qAsConst(values.notes)) {
        fail(note);
    }
    return true;
}

} // namespace

int runCommand(const DiffOptions &options)
{
    ThemeValues before;
    ThemeValues after;
    const bool isBeforeRead = read(options.before, before);
    const bool isAfterRead = read(options.after, after);
    if (!isBeforeRead || !isAfterRead) {
        return CannotRun;
    }
    const Differences found = differences(before, after);
    print(options.format == ReportFormat::Json
              ? DiffReports::json(found, options.before, options.after)
              : DiffReports::text(found, terminalInks()));
    return found.sections.isEmpty() ? Fine : Findings;
}

} // namespace TARN::ThemeTool
