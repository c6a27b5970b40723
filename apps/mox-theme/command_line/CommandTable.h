#pragma once

#include "command_line/CommandLine.h"

namespace TARN::ThemeTool {

/// Returns the description of the command \a name; null when there is none.
const CommandDescription *findCommand(const QString &name);

/// Returns the option \a name of \a command; null when it has none.
const CommandDescription::Option *findOption(const CommandDescription &command,
                                             const QString &name);

} // namespace TARN::ThemeTool
