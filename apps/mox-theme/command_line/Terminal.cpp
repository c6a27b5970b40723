#include "command_line/Terminal.h"

#include "command_line/ExitCode.h"
#include "text/Literals.h"
#include "text/Wording.h"

#include <QtCore/QByteArray>

#include <cstdio>
#include <unistd.h>

namespace TARN::ThemeTool {

namespace {

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

Inks terminalInks()
{
    const bool showsColours = isatty(STDOUT_FILENO) == 1 &&
                              !qEnvironmentVariableIsSet("NO_COLOR") && qgetenv("TERM") != "dumb";
    if (!showsColours) {
        return {};
    }
    const QByteArray depth = qgetenv("COLORTERM");
    const bool showsEvery = depth == "truecolor" || depth == "24bit";
    return Inks(showsEvery ? Inks::Range::Every : Inks::Range::Named);
}

int fail(const QString &problem)
{
    printError("mox-theme: "_s + onOneLine(problem) + "\n"_s);
    return CannotRun;
}

} // namespace TARN::ThemeTool
