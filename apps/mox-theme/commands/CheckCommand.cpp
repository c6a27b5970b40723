#include "check/Check.h"
#include "check/reports/Reports.h"
#include "command_line/Terminal.h"
#include "commands/Commands.h"

#include <algorithm>

namespace TARN::ThemeTool {

int runCommand(const CheckOptions &options)
{
    CheckSettings settings;
    settings.rules = options.rules;
    settings.all = options.all;

    QVector<Finding> findings;
    int themeCount = 0;
    for (const QString &directory : options.directories) {
        const QString problem = unreadableTheme(directory);
        if (!problem.isEmpty()) {
            fail(problem);
            continue;
        }
        findings += checkTheme(directory, settings);
        ++themeCount;
    }
    // An empty report would look as if all were well.
    if (themeCount > 0) {
        print(report(findings, options.format, themeCount, terminalInks()));
    }
    if (themeCount < options.directories.size()) {
        return CannotRun;
    }
    const bool found = std::any_of(findings.cbegin(), findings.cend(), [](const Finding &finding) {
        return finding.severity != Severity::Off;
    });
    return found ? Findings : Fine;
}

} // namespace TARN::ThemeTool
