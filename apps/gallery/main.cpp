#include "CommandLine.h"
#include "Display.h"
#include "MainWindow.h"
#include "Screenshots.h"
#include "Themes.h"
#include "samples/Literals.h"

#include <theme/ThemeQApplication.h>

#include <QtCore/QDir>
#include <QtCore/QTextStream>

#include <cstdio>

using namespace TARN::Gallery;

namespace {

enum ExitStatus { Success = 0, Failure = 1, WrongUsage = 2 };

void print(const QString &text)
{
    QTextStream(stdout) << text;
}

int fail(ExitStatus status, const QString &problem)
{
    const QString hint = status == WrongUsage ? "; --help explains the options"_s : QString();
    QTextStream(stderr) << "mox-theme-gallery: "_s << problem << hint << "\n"_s;
    return status;
}

QStringList argumentList(int argc, char **argv)
{
    QStringList list;
    for (int i = 1; i < argc; ++i) {
        list.append(QString::fromLocal8Bit(argv[i]));
    }
    return list;
}

bool isDisplayMissing(const CommandLine &commandLine)
{
    return !hasDisplay() && !commandLine.unknown.contains("-platform"_s) &&
           !commandLine.unknown.contains("--platform"_s);
}

void explainMissingDisplay(const QString &folder)
{
    print("There is no display (neither DISPLAY nor WAYLAND_DISPLAY is set), so no window can be "
          "shown.\nInstead, the gallery writes its pages as pictures to "_s +
          folder + ":\n"_s);
}

void prepareEnvironment(const CommandLine &commandLine)
{
    if (commandLine.action == CommandLine::Action::WriteScreenshots) {
        prepareScreenshotEnvironment(qMax(1, commandLine.scale));
    } else if (commandLine.scale > 0) {
        qputenv("QT_SCALE_FACTOR", QByteArray::number(commandLine.scale));
    }
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

int takeScreenshots(MainWindow &window, const QString &folder)
{
    const QString problem =
        writeScreenshots(window, folder, [](const QString &path) { print(path + "\n"_s); });
    return problem.isEmpty() ? Success : fail(Failure, problem);
}

int runApplication(int argc, char **argv, const CommandLine &commandLine, bool displayMissing)
{
    TARN::ThemeQApplication::setCompleteTheming(commandLine.isComplete);
    TARN::ThemeQApplication application(argc, argv, commandLine.theme, commandLine.repository);
    // The first theme is in force by now; from the next one on each takes the former's place.
    application.setProperty("appLiveThemeSwitch", true);

    const CommandLine leftOver = parseCommandLine(QCoreApplication::arguments().mid(1));
    if (!leftOver.unknown.isEmpty()) {
        return fail(WrongUsage, unknownArgumentError(leftOver));
    }
    MainWindow window(application, commandLine.theme);
    if (displayMissing) {
        explainMissingDisplay(commandLine.screenshotFolder);
    }
    if (commandLine.action == CommandLine::Action::WriteScreenshots) {
        return takeScreenshots(window, commandLine.screenshotFolder);
    }
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    CommandLine commandLine = parseCommandLine(argumentList(argc, argv));
    if (!commandLine.error.isEmpty()) {
        return fail(WrongUsage, commandLine.error);
    }
    if (commandLine.action == CommandLine::Action::PrintHelp) {
        print(commandLineHelp());
        return Success;
    }
    if (commandLine.action == CommandLine::Action::PrintVersion) {
        print("mox-theme-gallery " MOX_GALLERY_VERSION "\n"_s);
        return Success;
    }
    if (commandLine.theme.isEmpty()) {
        commandLine.theme = defaultTheme();
    }
    if (commandLine.repository.isEmpty()) {
        commandLine.repository = shippedRepository();
    }
    QString problem = selectRepository(commandLine.repository);
    if (problem.isEmpty()) {
        problem = themeProblem(commandLine.theme);
    }
    if (!problem.isEmpty()) {
        return fail(Failure, problem);
    }
    const bool displayMissing =
        commandLine.action == CommandLine::Action::ShowWindow && isDisplayMissing(commandLine);
    if (displayMissing) {
        commandLine.action = CommandLine::Action::WriteScreenshots;
        commandLine.screenshotFolder = QDir::current().filePath("mox-theme-gallery-screenshots"_s);
    }
    prepareEnvironment(commandLine);
    return runApplication(argc, argv, commandLine, displayMissing);
}
