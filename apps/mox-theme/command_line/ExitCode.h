#pragma once

namespace TARN::ThemeTool {

/// What the tool's process ends with.
enum ExitCode {
    Fine = 0,
    Findings = 1, ///< the command ran, and found something
    CannotRun = 2 ///< wrong usage, or input that cannot be read
};

} // namespace TARN::ThemeTool
