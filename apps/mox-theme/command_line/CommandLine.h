#pragma once

#include "command_line/Options.h"

#include <QtCore/QStringList>
#include <QtCore/QVector>

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

/// One command of the tool as its help shows it.
struct CommandDescription
{
    /// What a value may be, as far as a shell can complete it.
    enum class Value { None, Word, File, Folder };

    struct Option
    {
        QStringList names; ///< as they are typed, the short one first; empty for an argument
        QString valueName; ///< empty for a switch
        Value value = Value::None;
        QStringList values; ///< what is offered for the value; empty: whatever suits
        QString description;
        bool isRequired = false;
        bool isRepeatable = false;
    };

    QString name; ///< empty for the tool without a command
    QString description;
    QVector<Option> arguments; ///< in their order; only the last may be repeatable
    QVector<Option> options;
    QString examples; ///< one command line a line
};

/// Returns the tool's commands as the command line knows them.
QVector<CommandDescription> commandDescriptions();

/// Returns the tool itself, with the options that it takes without a command.
CommandDescription toolDescription();

} // namespace TARN::ThemeTool
