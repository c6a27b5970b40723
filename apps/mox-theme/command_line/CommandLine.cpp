#include "command_line/CommandLine.h"

#include "command_line/CommandTable.h"
#include "command_line/Help.h"
#include "command_line/Requests.h"
#include "text/DidYouMean.h"
#include "text/Literals.h"
#include "text/Wording.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <algorithm>
#include <optional>

namespace TARN::ThemeTool {

namespace {

using Option = CommandDescription::Option;

// An argument that may be given any number of times counts as one that never is complete: what the
// parser has for such arguments takes "[a,b]" apart.
constexpr int AnyNumber = 1 << 16;

void addOption(CLI::App &parser, const Option &option)
{
    const std::string names = option.names.join(u',').toStdString();
    if (option.valueName.isEmpty()) {
        parser.add_flag(names)->disable_flag_override();
    } else if (option.isRepeatable) {
        parser.add_option(names)->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    } else {
        parser.add_option(names);
    }
}

std::string argumentKey(int index)
{
    return "argument" + std::to_string(index);
}

void addCommand(CLI::App &parser, const CommandDescription &command)
{
    for (const Option &option : command.options) {
        addOption(parser, option);
    }
    for (int i = 0; i < command.arguments.size(); ++i) {
        parser.add_option(argumentKey(i))
            ->expected(command.arguments.at(i).isRepeatable ? AnyNumber : 1);
    }
}

QStringList toList(const std::vector<std::string> &words)
{
    QStringList list;
    for (const std::string &word : words) {
        list.append(QString::fromStdString(word));
    }
    return list;
}

// The words that are neither options nor arguments; the mark between these may stand anywhere.
QStringList strangersOf(const CLI::App &parser)
{
    QStringList words = toList(parser.remaining());
    words.removeAll("--"_s);
    return words;
}

// The words as the parser sorts them into options and arguments. What is wrong with them is found
// here, not there, so that it is told in the tool's own words and in the order that helps most.
class Reader
{
public:
    explicit Reader(const QStringList &words)
        : m_optionWords(words.mid(0, words.indexOf("--"_s)))
    {
        m_parser.set_help_flag();
        m_parser.require_subcommand(0, 1);
        addCommand(m_parser, toolDescription());
        for (const CommandDescription &command : commandDescriptions()) {
            CLI::App *parser = m_parser.add_subcommand(command.name.toStdString());
            parser->set_help_flag();
            addCommand(*parser, command);
        }
        std::vector<std::string> reversed;
        std::transform(words.crbegin(), words.crend(), std::back_inserter(reversed),
                       [](const QString &word) { return word.toStdString(); });
        try {
            m_parser.parse(std::move(reversed));
        } catch (const CLI::ParseError &) {
            // By now every word stands where it belongs, and the complaints follow.
        }
    }

    Request read()
    {
        const std::vector<CLI::App *> parsed = m_parser.get_subcommands();
        if (parsed.empty()) {
            return readTool();
        }
        const QString name = QString::fromStdString(parsed.front()->get_name());
        return readCommand(*findCommand(name), *parsed.front());
    }

private:
    [[nodiscard]] bool asksForHelp() const
    {
        return m_optionWords.contains("--help"_s) || m_optionWords.contains("-h"_s);
    }

    Request readTool() const
    {
        const QStringList strangers = strangersOf(m_parser);
        if (!strangers.isEmpty()) {
            return unknownToTool(strangers.constFirst());
        }
        if (asksForHelp()) {
            return Notice{Notice::Kind::Answer, helpText()};
        }
        if (m_parser.count("--version") > 0) {
            return Notice{Notice::Kind::Answer, "mox-theme " MOX_THEME_VERSION "\n"_s};
        }
        return Notice{Notice::Kind::Guidance, helpText()};
    }

    [[nodiscard]] bool isOption(const QString &word) const
    {
        return word.size() > 1 && word.startsWith(u'-') && m_optionWords.contains(word);
    }

    Notice unknownToTool(const QString &word) const
    {
        if (isOption(word)) {
            for (const CommandDescription &command : commandDescriptions()) {
                if (findOption(command, word.section(u'=', 0, 0))) {
                    return problem(QString(), "option '"_s + word + "' stands before a command"_s +
                                                  ", but belongs behind one"_s);
                }
            }
            return unknownOption(toolDescription(), word);
        }
        QStringList names;
        for (const CommandDescription &command : commandDescriptions()) {
            names.append(command.name);
        }
        const QString nearest = KnownNames(names).nearest(word);
        return problem(QString(),
                       "unknown command '"_s + word +
                           (nearest.isEmpty() ? "'; the commands are "_s + listed(names, "and"_s)
                                              : "', did you mean '"_s + nearest + "'?"_s));
    }

    static Notice unknownOption(const CommandDescription &command, const QString &word)
    {
        QStringList names;
        for (const Option &option : command.options) {
            names += option.names;
        }
        const QString nearest = KnownNames(names).nearest(word.section(u'=', 0, 0));
        const QString hint = nearest.isEmpty() ? "'; the options are "_s + listed(names, "and"_s)
                                               : "', did you mean '"_s + nearest + "'?"_s;
        return problem(command.name, "unknown option '"_s + word + hint);
    }

    Request readCommand(const CommandDescription &command, const CLI::App &parser) const
    {
        const QStringList misplaced = strangersOf(m_parser);
        if (!misplaced.isEmpty()) {
            return unknownToTool(misplaced.constFirst());
        }
        if (asksForHelp()) {
            return Notice{Notice::Kind::Answer, helpText(command)};
        }
        std::optional<Notice> complaint = valueProblem(command);
        if (!complaint) {
            complaint = strangerProblem(command, parser);
        }
        const TypedCommand typed = complaint ? TypedCommand() : sorted(command, parser);
        if (!complaint) {
            complaint = countProblem(command, typed);
        }
        if (!complaint) {
            complaint = choiceProblem(command, typed);
        }
        return complaint ? Request(*complaint) : readRequest(typed);
    }

    // The parser takes whatever follows an option for its value, even the next option.
    [[nodiscard]] std::optional<Notice> valueProblem(const CommandDescription &command) const
    {
        for (int i = 0; i < m_optionWords.size(); ++i) {
            const QString &word = m_optionWords.at(i);
            const int equals = word.indexOf(u'=');
            const QString name = word.left(equals);
            const Option *option = findOption(command, name);
            if (!option) {
                continue;
            }
            if (option->valueName.isEmpty()) {
                if (equals >= 0) {
                    return problem(command.name, "option '"_s + name + "' takes no value"_s);
                }
                continue;
            }
            const QString value = equals >= 0 ? word.mid(equals + 1) : m_optionWords.value(++i);
            if (value.isEmpty() || (equals < 0 && value.startsWith(u'-') && value.size() > 1)) {
                return problem(command.name,
                               "option '"_s + name + "' needs a value: "_s + option->valueName);
            }
        }
        return std::nullopt;
    }

    [[nodiscard]] std::optional<Notice> strangerProblem(const CommandDescription &command,
                                                        const CLI::App &parser) const
    {
        const QStringList strangers = strangersOf(parser);
        if (strangers.isEmpty()) {
            return std::nullopt;
        }
        const QString &word = strangers.constFirst();
        return isOption(word) ? unknownOption(command, word)
                              : problem(command.name, "unexpected argument '"_s + word +
                                                          "'; usage: "_s + usage(command));
    }

    static TypedCommand sorted(const CommandDescription &command, const CLI::App &parser)
    {
        TypedCommand typed;
        typed.name = command.name;
        for (const Option &option : command.options) {
            const QString &name = option.names.constLast();
            const CLI::Option *found = parser.get_option(name.toStdString());
            if (found->count() > 0) {
                typed.options.insert(name, toList(found->results()));
            }
        }
        for (int i = 0; i < command.arguments.size(); ++i) {
            typed.arguments += toList(parser.get_option(argumentKey(i))->results());
        }
        return typed;
    }

    static std::optional<Notice> countProblem(const CommandDescription &command,
                                              const TypedCommand &typed)
    {
        for (const Option &option : command.options) {
            const QString &name = option.names.constLast();
            const QStringList values = typed.options.value(name);
            const bool isValue = !option.valueName.isEmpty();
            if (isValue && !option.isRepeatable && values.size() > 1) {
                return problem(command.name, "option '"_s + name + "' is given twice"_s);
            }
        }
        QStringList missing;
        for (const Option &option : command.options) {
            if (option.isRequired && !typed.options.contains(option.names.constLast())) {
                missing.append(option.names.constLast());
            }
        }
        for (int i = typed.arguments.size(); i < command.arguments.size(); ++i) {
            missing.append(command.arguments.at(i).valueName);
        }
        if (missing.isEmpty()) {
            return std::nullopt;
        }
        return problem(command.name, listed(missing, "and"_s) +
                                         (missing.size() == 1 ? " is"_s : " are"_s) +
                                         " missing; usage: "_s + usage(command));
    }

    static std::optional<Notice> choiceProblem(const CommandDescription &command,
                                               const TypedCommand &typed)
    {
        for (const Option &option : command.options) {
            // The settings of rules are understood where more can be said about them.
            const bool isClosed = !option.values.isEmpty() && !option.isRepeatable;
            const QString &name = option.names.constLast();
            const QString value = typed.options.value(name).value(0);
            if (isClosed && typed.options.contains(name) && !option.values.contains(value)) {
                return problem(command.name, "option '"_s + name + "' takes "_s +
                                                 listed(option.values, "or"_s) + ", not '"_s +
                                                 value + "'"_s);
            }
        }
        for (int i = 0; i < typed.arguments.size(); ++i) {
            const QString &word = typed.arguments.at(i);
            const Option &argument =
                command.arguments.at(std::min(i, command.arguments.size() - 1));
            if (word.isEmpty()) {
                return problem(command.name, "'' is no "_s + argument.valueName);
            }
            if (!argument.values.isEmpty() && !argument.values.contains(word)) {
                return problem(command.name,
                               "'"_s + word + "' is none of "_s + listed(argument.values, "and"_s));
            }
        }
        return std::nullopt;
    }

    QStringList m_optionWords;
    CLI::App m_parser;
};

} // namespace

Request parseCommandLine(const QStringList &arguments)
{
    return Reader(arguments).read();
}

} // namespace TARN::ThemeTool
