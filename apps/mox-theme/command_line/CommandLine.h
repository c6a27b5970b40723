#pragma once

#include "command_line/Options.h"

#include <QtCore/QStringList>

#include <variant>

namespace TARN::ThemeTool {

/// What the tool says itself instead of running a command.
struct Notice
{
    enum class Kind {
        Answer,   ///< help or the version, because it was asked for
        Guidance, ///< help, because nothing was asked for
        Problem   ///< one line that says what is wrong with the command line
    };

    Kind kind = Kind::Answer;
    QString text;
};

/// One command with its options, or what to say instead.
using Request = std::variant<Notice, CheckOptions, NewOptions, BuildOptions, PreviewOptions,
                             DiffOptions, ImportOptions, CompletionOptions>;

/// Reads \a arguments, which do not include the program's name.
Request parseCommandLine(const QStringList &arguments);

} // namespace TARN::ThemeTool
