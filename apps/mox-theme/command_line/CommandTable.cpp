// What can be typed. The parser, the help texts and the completions are all made from this table.

#include "command_line/CommandTable.h"

#include "check/model/RuleTable.h"
#include "command_line/Options.h"
#include "text/Literals.h"

namespace TARN::ThemeTool {

namespace {

using Option = CommandDescription::Option;
using Value = CommandDescription::Value;

Option argument(const QString &name, Value value, const QString &description)
{
    return {{}, name, value, {}, description, true, false};
}

Option option(const QString &name, const QString &valueName, Value value,
              const QString &description)
{
    return {{name}, valueName, value, {}, description, false, false};
}

Option choice(const QString &name, const QStringList &values, const QString &description)
{
    return {{name}, values.join(u'|'), Value::Word, values, description, false, false};
}

Option toggle(const QStringList &names, const QString &description)
{
    return {names, QString(), Value::None, {}, description, false, false};
}

Option required(Option option)
{
    option.isRequired = true;
    return option;
}

Option repeatable(Option option)
{
    option.isRepeatable = true;
    return option;
}

Option help(const QString &what)
{
    return toggle({"-h"_s, "--help"_s}, "Explain "_s + what + " and exit"_s);
}

Option repository()
{
    return option("--out"_s, "DIR"_s, Value::Folder,
                  "The repository, a folder with one subfolder per theme, in which the theme's "
                  "folder is created (default: the current folder)"_s);
}

Option force()
{
    return toggle({"--force"_s}, "Write over a theme that is there"_s);
}

Option ruleSetting()
{
    const QStringList severities = keywordList<Severity>();
    Option setting = repeatable(
        option("--rule"_s, "NAME="_s + severities.join(u'|'), Value::Word,
               "What breaking the rule NAME counts as; may be given for any number of rules"_s));
    for (const Rule &rule : rules()) {
        for (const QString &severity : severities) {
            setting.values.append(rule.name + "="_s + severity);
        }
    }
    return setting;
}

CommandDescription checkCommand()
{
    return {"check"_s,
            "Find what is wrong with themes"_s,
            {repeatable(argument("DIR"_s, Value::Folder, "A theme's folder"_s))},
            {choice("--format"_s, keywordList<ReportFormat>(),
                    "How findings are written: for people, as JSON, as a SARIF log, or as "
                    "annotations of a GitHub workflow (default: text)"_s),
             ruleSetting(),
             toggle({"--all"_s}, "Name every missing variable, not each family of them once"_s),
             help("the command"_s)},
            "mox-theme check themes/Dark themes/Light\n"
            "mox-theme check --rule internal-value=off --format sarif themes/Dark\n"_s};
}

CommandDescription newCommand()
{
    return {
        "new"_s,
        "Start a theme from an accent colour"_s,
        {argument("NAME"_s, Value::Word, "The theme's name, which its folder takes"_s)},
        {choice("--base"_s, keywordList<Base>(), "What kind of theme it becomes (default: dark)"_s),
         required(option("--accent"_s, "COLOUR"_s, Value::Word,
                         "The opaque colour of what is selected, focused or to be noticed, "
                         "as #rrggbb or by its SVG name"_s)),
         repository(), force(), help("the command"_s)},
        "mox-theme new Harbour --accent '#3d8fd1'\n"
        "mox-theme new Paper --base light --accent teal --out themes\n"_s};
}

CommandDescription buildCommand()
{
    return {"build"_s,
            "Make a theme from its token file"_s,
            {argument("TOKENS"_s, Value::File, "The token file, which is TOML"_s)},
            {required(option("--out"_s, "DIR"_s, Value::Folder,
                             "The theme's folder; a theme that is there is replaced"_s)),
             help("the command"_s)},
            "mox-theme build themes/Harbour.toml --out themes/Harbour\n"_s};
}

CommandDescription previewCommand()
{
    return {"preview"_s,
            "Show a theme as a picture or in a window"_s,
            {argument("DIR"_s, Value::Folder, "The theme's folder"_s)},
            {option("--out"_s, "PNG"_s, Value::File,
                    "The picture's file (default: beside the theme's folder, named after it)"_s),
             toggle({"--watch"_s},
                    "Show a window that follows the theme's files, and write no picture"_s),
             help("the command"_s)},
            "mox-theme preview themes/Harbour --out harbour.png\n"
            "mox-theme preview --watch themes/Harbour\n"_s};
}

CommandDescription diffCommand()
{
    return {"diff"_s,
            "Tell in what two themes differ"_s,
            {argument("A"_s, Value::Folder, "The folder of the theme before"_s),
             argument("B"_s, Value::Folder, "The folder of the theme after"_s)},
            {choice("--format"_s, {"text"_s, "json"_s},
                    "How differences are written: for people or as JSON (default: text)"_s),
             help("the command"_s)},
            "mox-theme diff themes/Dark themes/Harbour\n"_s};
}

CommandDescription importCommand()
{
    return {"import"_s,
            "Make a theme from a colour scheme of another program"_s,
            {argument("FILE"_s, Value::File,
                      "A base16 or base24 scheme, which is YAML, or a KDE colour scheme"_s)},
            {option("--name"_s, "NAME"_s, Value::Word,
                    "The theme's name, which its folder takes (default: the scheme's own)"_s),
             repository(), force(), help("the command"_s)},
            "mox-theme import ocean.yaml --name Ocean --out themes\n"_s};
}

CommandDescription completionCommand()
{
    Option shell = argument(QString(), Value::Word, "The shell that reads the script"_s);
    shell.values = keywordList<Shell>();
    shell.valueName = shell.values.join(u'|');
    return {"completion"_s,
            "Print a script that completes the tool's commands in a shell"_s,
            {shell},
            {help("the command"_s)},
            "source <(mox-theme completion bash)\n"
            "mox-theme completion fish | source\n"_s};
}

const QVector<CommandDescription> &commands()
{
    static const QVector<CommandDescription> table = {
        checkCommand(), newCommand(),    buildCommand(),     previewCommand(),
        diffCommand(),  importCommand(), completionCommand()};
    return table;
}

} // namespace

QVector<CommandDescription> commandDescriptions()
{
    return commands();
}

CommandDescription toolDescription()
{
    return {QString(),
            "Makes, checks, compares and shows themes"_s,
            {},
            {help("the tool or, after a command, the command"_s),
             toggle({"--version"_s}, "Print the version and exit"_s)},
            QString()};
}

const CommandDescription *findCommand(const QString &name)
{
    for (const CommandDescription &command : commands()) {
        if (command.name == name) {
            return &command;
        }
    }
    return nullptr;
}

const CommandDescription::Option *findOption(const CommandDescription &command, const QString &name)
{
    for (const Option &option : command.options) {
        if (option.names.contains(name)) {
            return &option;
        }
    }
    return nullptr;
}

} // namespace TARN::ThemeTool
