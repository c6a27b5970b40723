#include "command_line/completion/Scripts.h"
#include "text/Literals.h"

namespace TARN::ThemeTool {

namespace {

using Option = CommandDescription::Option;
using Value = CommandDescription::Value;

const char *const scriptTemplate = R"(# fish completion for mox-theme

# Prints the command and the arguments before the cursor, one a line, without the options.
function __mox_theme_words
    set -l words (commandline -opc)
    set -e words[1]
    set -l isValue no
    set -l dashes no
    for word in $words
        if test $isValue = yes
            set isValue no
        else if test $dashes = no; and test "$word" = --
            set dashes yes
        else if test $dashes = no; and string match -q -- '-*' "$word"
            contains -- "$word" @VALUE_OPTIONS@; and set isValue yes
        else
            printf '%s\n' "$word"
        end
    end
end

# __mox_theme_in [COMMAND]: tells whether the words belong to COMMAND, or that none is there yet.
function __mox_theme_in
    set -l words (__mox_theme_words)
    test "$words[1]" = "$argv[1]"
end

# __mox_theme_at COMMAND NUMBER: tells whether the argument NUMBER of COMMAND comes next.
function __mox_theme_at
    __mox_theme_in $argv[1]; and test (count (__mox_theme_words)) -eq $argv[2]
end

complete -c mox-theme -f
@COMPLETIONS@)";

QString offer(const Option &option)
{
    switch (option.value) {
    case Value::None:
        return {};
    case Value::File:
        return " -r -F"_s;
    case Value::Folder:
        return " -x -a '(__fish_complete_directories)'"_s;
    case Value::Word:
        break;
    }
    return option.values.isEmpty() ? " -x"_s : " -x -a "_s + shellQuoted(option.values.join(u' '));
}

QString line(const QString &condition, const QString &offered, const QString &description)
{
    return "complete -c mox-theme -n "_s + shellQuoted(condition) + offered + " -d "_s +
           shellQuoted(briefly(description)) + u'\n';
}

QString optionLine(const QString &condition, const Option &option)
{
    QString names;
    for (const QString &name : option.names) {
        names += name.startsWith("--"_s) ? " -l "_s + name.mid(2) : " -s "_s + name.mid(1);
    }
    return line(condition, names + offer(option), option.description);
}

QString commandLines(const CommandDescription &command)
{
    QString lines = u'\n' + line("__mox_theme_in"_s, " -a "_s + command.name, command.description);
    const QString inCommand = "__mox_theme_in "_s + command.name;
    for (const Option &option : command.options) {
        lines += optionLine(inCommand, option);
    }
    for (int i = 0; i < command.arguments.size(); ++i) {
        const Option &argument = command.arguments.at(i);
        const QString here = argument.isRepeatable ? inCommand
                                                   : "__mox_theme_at "_s + command.name + u' ' +
                                                         QString::number(i + 1);
        lines += line(here, offer(argument), argument.description);
    }
    return lines;
}

} // namespace

QString fishScript()
{
    QStringList valueOptions;
    QString completions;
    for (const Option &option : toolDescription().options) {
        completions += optionLine("__mox_theme_in"_s, option);
    }
    for (const CommandDescription &command : commandDescriptions()) {
        completions += commandLines(command);
        for (const Option &option : command.options) {
            valueOptions += option.value == Value::None ? QStringList() : option.names;
        }
    }
    valueOptions.removeDuplicates();
    return QString::fromUtf8(scriptTemplate)
        .replace("@VALUE_OPTIONS@"_s, valueOptions.join(u' '))
        .replace("@COMPLETIONS@"_s, completions);
}

} // namespace TARN::ThemeTool
