#pragma once

namespace TARN::ThemeTool {

/// What an application object is created with: the program's name alone. The options are the
/// tool's own; the toolkit would take those that are spelled like its own for itself.
struct ProgramArguments
{
    int count = 0;
    char **values = nullptr;
};

/// Returns what main() has set; the application object keeps a reference to the count.
ProgramArguments &programArguments();

} // namespace TARN::ThemeTool
