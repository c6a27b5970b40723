#include "command_line/completion/Scripts.h"
#include "text/Literals.h"

namespace TARN::ThemeTool {

namespace {

using Option = CommandDescription::Option;
using Value = CommandDescription::Value;

const char *const scriptTemplate = R"(# bash completion for mox-theme

# _mox_theme_look_up COMMAND WORD: sets the command's options, and what the option WORD or the
# argument of the number WORD is: its kind, which is empty for what takes no value, and the values.
_mox_theme_look_up()
{
    kind= values=
    case $1 in
@OPTIONS@    esac
    case "$1 $2" in
@VALUES@    esac
}

_mox_theme()
{
    COMPREPLY=()
    local words=() word i

    # For bash "=" may stand between words; for the tool it is part of one.
    for ((i = 0; i <= COMP_CWORD; ++i)); do
        word=${COMP_WORDS[i]}
        if ((i > 1)) && [[ $word == =* || ${words[${#words[@]} - 1]} == *= ]]; then
            words[${#words[@]} - 1]+=$word
        else
            words+=("$word")
        fi
    done

    local options= kind= values= command= option= position=1 dashes=
    for ((i = 1; i < ${#words[@]} - 1; ++i)); do
        word=${words[i]}
        if [[ $option ]]; then
            option=
        elif [[ $word == -- ]]; then
            dashes=yes
        elif [[ $word == -* && ! $dashes ]]; then
            _mox_theme_look_up "$command" "$word"
            if [[ $kind ]]; then
                option=$word
            fi
        elif [[ ! $command ]]; then
            command=$word
        else
            ((++position))
        fi
    done

    local current=${words[${#words[@]} - 1]} prefix=
    local value=$current
    if [[ $option ]]; then
        _mox_theme_look_up "$command" "$option"
    elif [[ $current == -*=* && ! $dashes ]]; then
        prefix=${current%%=*}=
        value=${current#*=}
        _mox_theme_look_up "$command" "${current%%=*}"
    elif [[ $current == -* && ! $dashes ]]; then
        _mox_theme_look_up "$command" "$current"
        kind=word values=$options
    elif [[ $command ]]; then
        _mox_theme_look_up "$command" "$position"
    else
        kind=word values=@COMMANDS@
    fi

    case $kind in
    folder) compopt -o dirnames ;;
    file) compopt -o default ;;
    setting)
        if [[ $value != *=* ]]; then
            # The name first, then what it is set to.
            compopt -o nospace
            values=$(printf '%s\n' $values | sed 's/=.*/=/' | sort -u)
        fi
        ;;
    esac
    COMPREPLY=($(compgen -W "$values" -P "$prefix" -- "$value"))
    if [[ $current == *=* && $COMP_WORDBREAKS == *=* ]]; then
        # Only what stands behind the last "=" is a word for bash.
        COMPREPLY=("${COMPREPLY[@]#"${current%"${current##*=}"}"}")
    fi
}

complete -F _mox_theme mox-theme
)";

QString optionNames(const CommandDescription &command)
{
    QStringList names;
    for (const Option &option : command.options) {
        names += option.names;
    }
    return "    "_s + shellQuoted(command.name) + ") options="_s + shellQuoted(names.join(u' ')) +
           " ;;\n"_s;
}

QString kindName(const Option &option)
{
    switch (option.value) {
    case Value::None:
        return {};
    case Value::File:
        return "file"_s;
    case Value::Folder:
        return "folder"_s;
    case Value::Word:
        break;
    }
    return settingWords(option).names.isEmpty() ? "word"_s : "setting"_s;
}

QString valueLine(const QString &pattern, const Option &option)
{
    QString line = "    "_s + pattern + ") kind="_s + kindName(option);
    if (!option.values.isEmpty()) {
        line += " values="_s + shellQuoted(option.values.join(u' '));
    }
    return line + " ;;\n"_s;
}

QString valueLines(const CommandDescription &command)
{
    QString lines;
    for (const Option &option : command.options) {
        for (const QString &name : option.names) {
            if (option.value != Value::None) {
                lines += valueLine(shellQuoted(command.name + u' ' + name), option);
            }
        }
    }
    for (int i = 0; i < command.arguments.size(); ++i) {
        const Option &argument = command.arguments.at(i);
        const QString number = argument.isRepeatable ? "[0-9]*"_s : QString::number(i + 1);
        lines += valueLine(shellQuoted(command.name + u' ') + number, argument);
    }
    return lines;
}

} // namespace

QString bashScript()
{
    QString options = optionNames(toolDescription());
    QString values = valueLines(toolDescription());
    QStringList commands;
    for (const CommandDescription &command : commandDescriptions()) {
        options += optionNames(command);
        values += valueLines(command);
        commands.append(command.name);
    }
    return QString::fromUtf8(scriptTemplate)
        .replace("@OPTIONS@"_s, options)
        .replace("@VALUES@"_s, values)
        .replace("@COMMANDS@"_s, shellQuoted(commands.join(u' ')));
}

} // namespace TARN::ThemeTool
