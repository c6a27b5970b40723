#pragma once

#include "command_line/CommandTable.h"

namespace TARN::ThemeTool {

/// Returns how \a command is called, in one line.
QString usage(const CommandDescription &command);

/// Returns the text that explains \a command.
QString helpText(const CommandDescription &command);

/// Returns the text that explains the tool and lists its commands.
QString helpText();

} // namespace TARN::ThemeTool
