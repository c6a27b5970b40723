#include "command_line/Terminal.h"

#include "command_line/ExitCode.h"
#include "text/Literals.h"

#include <QtGui/QColor>

#include <cstdio>
#include <unistd.h>

namespace TARN::ThemeTool {

namespace {

const char *escapeCode(Ink ink)
{
    switch (ink) {
    case Ink::Bold:
        return "\033[1m";
    case Ink::Faint:
        return "\033[2m";
    case Ink::Red:
        return "\033[1;31m";
    case Ink::Yellow:
        return "\033[1;33m";
    case Ink::Green:
        return "\033[1;32m";
    case Ink::Plain:
        break;
    }
    return "";
}

bool showsColours()
{
    return isatty(STDOUT_FILENO) == 1 && !qEnvironmentVariableIsSet("NO_COLOR") &&
           qgetenv("TERM") != "dumb";
}

bool showsEveryColour()
{
    const QByteArray depth = qgetenv("COLORTERM");
    return showsColours() && (depth == "truecolor" || depth == "24bit");
}

void write(std::FILE *stream, const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
    std::fflush(stream);
}

} // namespace

void print(const QString &text)
{
    write(stdout, text);
}

void printError(const QString &text)
{
    write(stderr, text);
}

QString inked(const QString &text, Ink ink)
{
    static const bool coloured = showsColours();
    if (!coloured || ink == Ink::Plain) {
        return text;
    }
    return QLatin1String(escapeCode(ink)) + text + "\033[0m"_s;
}

QString onOneLine(const QString &text)
{
    QString line;
    for (const QChar character : text) {
        if (character.category() == QChar::Other_Control) {
            line += "\\x%1"_s.arg(character.unicode(), 2, 16, QChar(u'0'));
        } else {
            line += character;
        }
    }
    return line;
}

QString swatch(const QColor &color)
{
    static const bool coloured = showsEveryColour();
    if (!coloured || !color.isValid()) {
        return {};
    }
    return "\033[48;2;%1;%2;%3m  \033[0m "_s.arg(color.red()).arg(color.green()).arg(color.blue());
}

int fail(const QString &problem)
{
    printError("mox-theme: "_s + onOneLine(problem) + "\n"_s);
    return CannotRun;
}

ProgramArguments &programArguments()
{
    static ProgramArguments arguments;
    return arguments;
}

} // namespace TARN::ThemeTool
