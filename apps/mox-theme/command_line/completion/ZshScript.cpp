#include "command_line/completion/Scripts.h"
#include "text/Literals.h"

namespace TARN::ThemeTool {

namespace {

using Option = CommandDescription::Option;
using Value = CommandDescription::Value;

const char *const scriptTemplate = R"(#compdef mox-theme
# zsh completion for mox-theme

# _mox-theme-settings NAMES VALUES: completes "name=", and behind it a value.
_mox-theme-settings() {
    if compset -P '*='; then
        compadd -- ${=2}
    else
        compadd -q -S = -- ${=1}
    fi
}

_mox-theme() {
    local curcontext=$curcontext state line
    typeset -A opt_args
    local -a commands
    commands=(
@COMMANDS@    )

    _arguments -C \
@TOOL_OPTIONS@        '1: :->command' \
        '*:: :->words'

    case $state in
    command) _describe -t commands command commands ;;
    words)
        curcontext=${curcontext%:*:*}:mox-theme-$words[1]:
        case $words[1] in
@CASES@        esac
        ;;
    esac
}

if [[ $funcstack[1] == _mox-theme ]]; then
    _mox-theme "$@"
else
    compdef _mox-theme mox-theme
fi
)";

// Returns text as it may stand in the description of an option.
QString bracketed(const QString &text)
{
    return u'[' + briefly(text).replace(u'[', "\\["_s).replace(u']', "\\]"_s) + u']';
}

QString action(const Option &option)
{
    switch (option.value) {
    case Value::None:
        return {};
    case Value::File:
        return "_files"_s;
    case Value::Folder:
        return "_files -/"_s;
    case Value::Word:
        break;
    }
    const SettingWords words = settingWords(option);
    if (!words.names.isEmpty()) {
        return "{_mox-theme-settings \""_s + words.names.join(u' ') + "\" \""_s +
               words.settings.join(u' ') + "\"}"_s;
    }
    return option.values.isEmpty() ? " "_s : u'(' + option.values.join(u' ') + u')';
}

QString valuePart(const Option &option)
{
    return u':' + option.valueName + u':' + action(option);
}

// Returns how the shell is told an option, one line a name.
QStringList optionParts(const Option &option)
{
    // With these nothing else is worth completing.
    const bool isAlone = option.names.contains("--help"_s) || option.names.contains("--version"_s);
    const QString others = isAlone               ? "(- *)"_s
                           : option.isRepeatable ? "*"_s
                                                 : u'(' + option.names.join(u' ') + u')';
    QStringList parts;
    for (const QString &name : option.names) {
        const bool isSwitch = option.value == Value::None;
        parts.append(shellQuoted(others + name + (isSwitch ? QString() : "="_s) +
                                 bracketed(option.description) +
                                 (isSwitch ? QString() : valuePart(option))));
    }
    return parts;
}

QStringList commandParts(const CommandDescription &command)
{
    QStringList parts;
    for (const Option &option : command.options) {
        parts += optionParts(option);
    }
    for (int i = 0; i < command.arguments.size(); ++i) {
        const Option &argument = command.arguments.at(i);
        const QString number = argument.isRepeatable ? "*"_s : QString::number(i + 1);
        parts.append(shellQuoted(number + valuePart(argument)));
    }
    return parts;
}

} // namespace

QString zshScript()
{
    const QString newLine = " \\\n"_s;
    QString commands;
    QString cases;
    for (const CommandDescription &command : commandDescriptions()) {
        commands += "        "_s + shellQuoted(command.name + u':' + command.description) + u'\n';
        const QString margin = newLine + QString(16, u' ');
        cases += "        "_s + command.name + ")\n            _arguments -S"_s + margin +
                 commandParts(command).join(margin) + "\n            ;;\n"_s;
    }
    QString toolOptions;
    for (const QString &part : commandParts(toolDescription())) {
        toolOptions += "        "_s + part + newLine;
    }
    return QString::fromUtf8(scriptTemplate)
        .replace("@COMMANDS@"_s, commands)
        .replace("@TOOL_OPTIONS@"_s, toolOptions)
        .replace("@CASES@"_s, cases);
}

} // namespace TARN::ThemeTool
