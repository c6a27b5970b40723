#include "command_line/CommandLine.h"
#include "command_line/ProgramArguments.h"
#include "command_line/Terminal.h"
#include "commands/Commands.h"
#include "text/Literals.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTextCodec>
#include <QtGui/QGuiApplication>

#include <unistd.h>

using namespace TARN::ThemeTool;

namespace {

QStringList argumentList(int argc, char **argv)
{
    QStringList list;
    for (int i = 1; i < argc; ++i) {
        list.append(QString::fromLocal8Bit(argv[i]));
    }
    return list;
}

// Colours, icons and fonts need an application object, but no session: not its display; not its
// desktop's own theme, some of whose plugins end the program when there is no display; and not its
// folder, whose absence in a container the toolkit complains of.
void leaveSessionAlone()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qunsetenv("QT_QPA_PLATFORMTHEME");
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
        const QString folder = "mox-theme-%1"_s.arg(getuid());
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(QDir::temp().filePath(folder)));
    }
}

int run(const Notice &notice)
{
    switch (notice.kind) {
    case Notice::Kind::Answer:
        print(notice.text);
        return Fine;
    case Notice::Kind::Guidance:
        printError(notice.text);
        return CannotRun;
    case Notice::Kind::Problem:
        break;
    }
    return fail(notice.text);
}

// Creates its application object, of a kind of its own, itself.
int run(const PreviewOptions &options)
{
    return runCommand(options);
}

// Needs no application object.
int run(const CompletionOptions &options)
{
    return runCommand(options);
}

template <typename Options>
int run(const Options &options)
{
    leaveSessionAlone();
    ProgramArguments &arguments = programArguments();
    const QGuiApplication application(arguments.count, arguments.values);
    return runCommand(options);
}

} // namespace

// What still is thrown here, such as for want of memory, leaves nothing to be done.
// NOLINTNEXTLINE(bugprone-exception-escape)
int main(int argc, char **argv)
{
    // The names of files are what they are whatever the locale says, the one of a build machine
    // or a container above all.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const QStringList words = argumentList(argc, argv);

    char *programName[] = {argv[0], nullptr};
    programArguments() = {1, programName};
    return std::visit([](const auto &request) { return run(request); }, parseCommandLine(words));
}
