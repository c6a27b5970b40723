#include "CommandLine.h"

#include "samples/Literals.h"

#include <QtCore/QVector>

#include <utility>

namespace TARN::Gallery {

namespace {

// Takes the value of an option; returns what is wrong with it.
using Handler = QString (*)(CommandLine &, const QString &value);

struct Option
{
    QString name;
    bool takesValue;
    Handler handle;
};

QString setScale(CommandLine &commandLine, const QString &value)
{
    if (value != "1"_s && value != "2"_s) {
        return "the scale is 1 or 2, not '"_s + value + "'"_s;
    }
    commandLine.scale = value.toInt();
    return {};
}

QString setMode(CommandLine &commandLine, const QString &value)
{
    if (value != "complete"_s && value != "default"_s) {
        return "the mode is complete or default, not '"_s + value + "'"_s;
    }
    commandLine.isComplete = value == "complete"_s;
    return {};
}

QString setScreenshotFolder(CommandLine &commandLine, const QString &value)
{
    commandLine.action = CommandLine::Action::WriteScreenshots;
    commandLine.screenshotFolder = value;
    return {};
}

template <QString CommandLine::*Member>
QString setText(CommandLine &commandLine, const QString &value)
{
    commandLine.*Member = value;
    return {};
}

template <CommandLine::Action Value>
QString setAction(CommandLine &commandLine, const QString & /*value*/)
{
    commandLine.action = Value;
    return {};
}

const QVector<Option> &options()
{
    static const QVector<Option> table = {
        {"--theme"_s, true, setText<&CommandLine::theme>},
        {"--theme-repository"_s, true, setText<&CommandLine::repository>},
        {"--screenshot"_s, true, setScreenshotFolder},
        {"--scale"_s, true, setScale},
        {"--mode"_s, true, setMode},
        {"--help"_s, false, setAction<CommandLine::Action::PrintHelp>},
        {"-h"_s, false, setAction<CommandLine::Action::PrintHelp>},
        {"--version"_s, false, setAction<CommandLine::Action::PrintVersion>},
    };
    return table;
}

const Option *findOption(const QString &name)
{
    for (const Option &option : options()) {
        if (option.name == name) {
            return &option;
        }
    }
    return nullptr;
}

// Walks over the arguments; what it finds wrong ends the walk.
class Parser
{
public:
    explicit Parser(QStringList arguments)
        : m_rest(std::move(arguments))
    {
    }

    CommandLine parse()
    {
        while (!m_rest.isEmpty() && m_result.error.isEmpty() && !isDone()) {
            readArgument(m_rest.takeFirst());
        }
        return m_result;
    }

private:
    // Whoever asks for help gets it, whatever else the command line says.
    [[nodiscard]] bool isDone() const
    {
        return m_result.action == CommandLine::Action::PrintHelp ||
               m_result.action == CommandLine::Action::PrintVersion;
    }

    void readArgument(const QString &argument)
    {
        const int equals = argument.indexOf(u'=');
        const QString name = argument.left(equals);
        const Option *option = findOption(name);
        if (!option) {
            m_result.unknown.append(argument);
        } else if (m_seen.contains(name)) {
            m_result.error = "option '"_s + name + "' is given twice"_s;
        } else if (!option->takesValue && equals >= 0) {
            m_result.error = "option '"_s + name + "' takes no value"_s;
        } else {
            m_seen.append(name);
            readValue(*option, equals < 0 ? QString() : argument.mid(equals + 1), equals < 0);
        }
    }

    void readValue(const Option &option, QString value, bool follows)
    {
        if (option.takesValue && follows && !m_rest.isEmpty() &&
            !m_rest.constFirst().startsWith(u'-')) {
            value = m_rest.takeFirst();
        }
        if (option.takesValue && value.isEmpty()) {
            m_result.error = "option '"_s + option.name + "' needs a value"_s;
            return;
        }
        m_result.error = option.handle(m_result, value);
    }

    QStringList m_rest;
    QStringList m_seen;
    CommandLine m_result;
};

} // namespace

CommandLine parseCommandLine(const QStringList &arguments)
{
    return Parser(arguments).parse();
}

QString unknownArgumentError(const CommandLine &commandLine)
{
    if (commandLine.unknown.isEmpty()) {
        return {};
    }
    const QString &argument = commandLine.unknown.constFirst();
    const QString kind = argument.startsWith(u'-') ? "unknown option"_s : "unexpected argument"_s;
    return kind + " '"_s + argument + "'"_s;
}

QString commandLineHelp()
{
    return R"(Usage: mox-theme-gallery [options]

Shows every widget of the toolkit, enabled and disabled, in a theme that can be
switched while the program runs.

Options:
  --theme NAME             Start with the theme NAME (default: Dark).
  --theme-repository PATH  Look for themes in PATH, a folder with one subfolder
                           per theme (default: the themes that are installed
                           with the gallery).
  --screenshot DIR         Write one PNG picture per page into the folder DIR,
                           which is created when it is missing, print the
                           paths, and exit. No display is needed.
  --scale 1|2              Pixels per unit of length, in the window and in
                           pictures (pictures: 1 unless given).
  --mode complete|default  Have the theme's style paint everything without an
                           application stylesheet, or leave to the toolkit what
                           is left to it by default (default: complete).
  -h, --help               Explain the options and exit.
  --version                Print the version and exit.

The toolkit's own options, such as -platform NAME, -style NAME or -reverse, are
understood as well.

Without a display (neither DISPLAY nor WAYLAND_DISPLAY is set, and no platform
is chosen by QT_QPA_PLATFORM or -platform) the gallery writes its pictures into
the folder mox-theme-gallery-screenshots.

Exit status: 0 on success, 1 when a theme, a repository or a folder cannot be
used, 2 when the options are wrong.
)"_s;
}

} // namespace TARN::Gallery
