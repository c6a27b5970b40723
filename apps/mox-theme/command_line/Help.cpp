#include "command_line/Help.h"

#include "check/model/RuleTable.h"
#include "text/Literals.h"

#include <algorithm>

namespace TARN::ThemeTool {

namespace {

using Option = CommandDescription::Option;

constexpr int LineWidth = 80;
constexpr int WidestLabel = 24;

struct Row
{
    QString label;
    QString text;
};

QStringList wrapped(const QString &text, int width)
{
    QStringList lines = {QString()};
    for (const QString &word : text.split(u' ')) {
        QString &line = lines.last();
        if (line.isEmpty()) {
            line = word;
        } else if (line.size() + 1 + word.size() <= width) {
            line += u' ' + word;
        } else {
            lines.append(word);
        }
    }
    return lines;
}

// Returns the heading and below it the rows, their texts in one column. A label that is wider than
// the others has a line of its own.
QString section(const QString &heading, const QVector<Row> &rows)
{
    int width = 0;
    for (const Row &row : rows) {
        width = std::max(width, std::min(row.label.size(), WidestLabel));
    }
    const QString margin(width + 4, u' ');
    QString text = "\n"_s + heading + ":\n"_s;
    for (const Row &row : rows) {
        const QString label = "  "_s + row.label;
        const bool isAlone = row.label.size() > width;
        text += isAlone ? label + u'\n' + margin : label.leftJustified(margin.size());
        text += wrapped(row.text, LineWidth - margin.size()).join(u'\n' + margin) + u'\n';
    }
    return text;
}

QString argumentLabel(const Option &argument)
{
    return argument.valueName + (argument.isRepeatable ? "..."_s : QString());
}

QString optionLabel(const Option &option)
{
    return option.names.join(", "_s) +
           (option.valueName.isEmpty() ? QString() : u' ' + option.valueName);
}

QVector<Row> optionRows(const CommandDescription &command)
{
    QVector<Row> rows;
    for (const Option &option : command.options) {
        const QString hint = option.isRequired ? " (required)"_s : QString();
        rows.append({optionLabel(option), option.description + hint});
    }
    return rows;
}

QVector<Row> ruleRows()
{
    QVector<Row> rows;
    for (const Rule &rule : rules()) {
        rows.append({rule.name + "="_s + toKeyword(rule.severity), rule.description});
    }
    return rows;
}

QString exampleLines(const CommandDescription &command)
{
    QString text = "\nExamples:\n"_s;
    for (const QString &line : command.examples.split(u'\n', Qt::SkipEmptyParts)) {
        text += "  "_s + line + u'\n';
    }
    return text;
}

} // namespace

QString usage(const CommandDescription &command)
{
    QString text = "mox-theme "_s + command.name + " [options]"_s;
    for (const Option &option : command.options) {
        if (option.isRequired) {
            text += u' ' + optionLabel(option);
        }
    }
    for (const Option &argument : command.arguments) {
        text += u' ' + argumentLabel(argument);
    }
    return text;
}

QString helpText(const CommandDescription &command)
{
    QVector<Row> arguments;
    for (const Option &argument : command.arguments) {
        arguments.append({argumentLabel(argument), argument.description});
    }
    QString text = "Usage: "_s + usage(command) + "\n\n"_s + command.description + ".\n"_s +
                   section("Arguments"_s, arguments) + section("Options"_s, optionRows(command));
    const auto namesRules = [](const Option &option) { return option.names.contains("--rule"_s); };
    if (std::any_of(command.options.cbegin(), command.options.cend(), namesRules)) {
        text += section("Rules and what breaking them counts as"_s, ruleRows());
    }
    return text + exampleLines(command);
}

QString helpText()
{
    const CommandDescription tool = toolDescription();
    QVector<Row> commands;
    for (const CommandDescription &command : commandDescriptions()) {
        commands.append({command.name, command.description});
    }
    return "Usage: mox-theme COMMAND [options] [arguments]\n\n"_s + tool.description + ".\n"_s +
           section("Commands"_s, commands) + section("Options"_s, optionRows(tool)) +
           "\nExit status: 0 on success, 1 when a command has found something, 2 when it cannot\n"
           "run: it is called wrongly, or a file cannot be read or written.\n"
           "\n'mox-theme COMMAND --help' explains a command.\n"_s;
}

} // namespace TARN::ThemeTool
