#pragma once

#include "command_line/ExitCode.h"
#include "command_line/Options.h"

/// The tool's commands. Each runs to its end and returns the tool's exit code.
namespace TARN::ThemeTool {

int runCommand(const CheckOptions &options);
int runCommand(const NewOptions &options);
int runCommand(const BuildOptions &options);
int runCommand(const PreviewOptions &options);
int runCommand(const DiffOptions &options);
int runCommand(const ImportOptions &options);
int runCommand(const CompletionOptions &options);

} // namespace TARN::ThemeTool
