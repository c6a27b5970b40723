#pragma once

#include <QtCore/QStringList>
#include <QtCore/QVector>

namespace TARN::ThemeTool {

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

/// Returns the description of the command \a name; null when there is none.
const CommandDescription *findCommand(const QString &name);

/// Returns the option \a name of \a command; null when it has none.
const CommandDescription::Option *findOption(const CommandDescription &command,
                                             const QString &name);

} // namespace TARN::ThemeTool
