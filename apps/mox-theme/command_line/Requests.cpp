#include "command_line/Requests.h"

#include "check/model/RuleTable.h"
#include "generator/tokens/ThemeName.h"
#include "text/DidYouMean.h"
#include "text/Literals.h"
#include "text/Wording.h"

namespace TARN::ThemeTool {

namespace {

// What is wrong with a value; empty when nothing is.
using Complaint = QString;

// Returns the last value of an option; fallback when it is not given.
QString valueOf(const TypedCommand &command, const QString &option, const QString &fallback = {})
{
    const QStringList values = command.options.value(option);
    return values.isEmpty() ? fallback : values.constLast();
}

template <typename Choice>
void readChoice(const TypedCommand &command, const QString &option, Choice &choice)
{
    // Words that stand for nothing have been refused with all that are not offered.
    choice = fromKeyword<Choice>(valueOf(command, option)).value_or(choice);
}

Complaint unknownRule(const QString &name)
{
    QStringList names;
    for (const Rule &rule : rules()) {
        names.append(rule.name);
    }
    const QString nearest = KnownNames(names).nearest(name);
    return "there is no rule '"_s + name +
           (nearest.isEmpty() ? "'; the rules are "_s + listed(names, "and"_s)
                              : "', did you mean '"_s + nearest + "'?"_s);
}

Complaint readRule(const QString &setting, QMap<QString, Severity> &rules)
{
    const int equals = setting.indexOf(u'=');
    const QString name = setting.left(equals);
    if (!findRule(name)) {
        return unknownRule(name);
    }
    const QString expected = listed(keywordList<Severity>(), "or"_s);
    if (equals < 0) {
        return "'"_s + setting + "' lacks what the rule counts as: '"_s + name + "="_s +
               keywordList<Severity>().join(u'|') + "'"_s;
    }
    const QString word = setting.mid(equals + 1);
    const auto severity = fromKeyword<Severity>(word);
    if (!severity) {
        return "rule '"_s + name + "' can count as "_s + expected + ", not as '"_s + word + "'"_s;
    }
    rules.insert(name, *severity);
    return {};
}

Request readCheck(const TypedCommand &command)
{
    CheckOptions options;
    options.directories = command.arguments;
    options.all = command.options.contains("--all"_s);
    readChoice(command, "--format"_s, options.format);
    for (const QString &setting : command.options.value("--rule"_s)) {
        const Complaint complaint = readRule(setting, options.rules);
        if (!complaint.isEmpty()) {
            return problem(command.name, complaint);
        }
    }
    return options;
}

Complaint nameComplaint(const QString &name)
{
    const QString reason = themeNameProblem(name);
    return reason.isEmpty() ? QString() : "the name '"_s + name + "' "_s + reason;
}

Complaint readColor(const QString &word, QColor &color)
{
    color.setNamedColor(word);
    if (!color.isValid()) {
        return "'"_s + word + "' is no colour; write one as #rrggbb or by its SVG name"_s;
    }
    if (color.alpha() != 255) {
        return "the colour '"_s + word + "' is not opaque"_s;
    }
    return {};
}

Request readNew(const TypedCommand &command)
{
    NewOptions options;
    options.name = command.arguments.constFirst();
    options.out = valueOf(command, "--out"_s, options.out);
    options.force = command.options.contains("--force"_s);
    readChoice(command, "--base"_s, options.base);
    Complaint complaint = nameComplaint(options.name);
    if (complaint.isEmpty()) {
        complaint = readColor(valueOf(command, "--accent"_s), options.accent);
    }
    return complaint.isEmpty() ? Request(options) : problem(command.name, complaint);
}

Request readBuild(const TypedCommand &command)
{
    return BuildOptions{command.arguments.constFirst(), valueOf(command, "--out"_s)};
}

Request readPreview(const TypedCommand &command)
{
    return PreviewOptions{command.arguments.constFirst(), valueOf(command, "--out"_s),
                          command.options.contains("--watch"_s)};
}

Request readDiff(const TypedCommand &command)
{
    DiffOptions options{command.arguments.at(0), command.arguments.at(1)};
    readChoice(command, "--format"_s, options.format);
    return options;
}

Request readImport(const TypedCommand &command)
{
    ImportOptions options;
    options.file = command.arguments.constFirst();
    options.name = valueOf(command, "--name"_s);
    options.out = valueOf(command, "--out"_s, options.out);
    options.force = command.options.contains("--force"_s);
    const bool isNamed = command.options.contains("--name"_s);
    const Complaint complaint = isNamed ? nameComplaint(options.name) : QString();
    return complaint.isEmpty() ? Request(options) : problem(command.name, complaint);
}

Request readCompletion(const TypedCommand &command)
{
    CompletionOptions options;
    options.shell = fromKeyword<Shell>(command.arguments.constFirst()).value_or(options.shell);
    return options;
}

} // namespace

Request readRequest(const TypedCommand &command)
{
    static const QHash<QString, Request (*)(const TypedCommand &)> readers = {
        {"check"_s, readCheck},          {"new"_s, readNew},   {"build"_s, readBuild},
        {"preview"_s, readPreview},      {"diff"_s, readDiff}, {"import"_s, readImport},
        {"completion"_s, readCompletion}};
    return readers.value(command.name)(command);
}

Notice problem(const QString &command, const QString &text)
{
    return {Notice::Kind::Problem, command.isEmpty() ? text : command + ": "_s + text};
}

} // namespace TARN::ThemeTool
