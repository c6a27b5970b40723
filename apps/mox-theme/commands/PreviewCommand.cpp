#include "check/Check.h"
#include "command_line/ProgramArguments.h"
#include "command_line/Terminal.h"
#include "commands/Commands.h"
#include "preview/ContactSheet.h"
#include "preview/LivePreview.h"
#include "preview/ThemeSession.h"
#include "text/Literals.h"

#include <theme/ThemeFactory.h>
#include <theme/ThemeQApplication.h>

#include <QtCore/QDir>
#include <QtCore/QSaveFile>
#include <QtWidgets/QMainWindow>

#include <Display.h>
#include <Screenshots.h>

namespace TARN::ThemeTool {

namespace {

// The picture is large: packed as tightly as can be it would take seconds, and be little smaller.
constexpr int PngQuality = 80;

QtMessageHandler formerHandler = nullptr;

// The platform without a display says of each window that it will not do what no sheet needs.
void passOnMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.startsWith("This plugin does not support propagateSizeHints"_s)) {
        formerHandler(type, context, message);
    }
}

QString quoted(const QString &path)
{
    return "'"_s + QDir::toNativeSeparators(path) + "'"_s;
}

int failToShow(const QString &directory, const QString &problem)
{
    return fail(quoted(directory) + " is no theme that can be shown: "_s + problem);
}

int writeSheet(const ThemeSession &session, const QString &path)
{
    const QImage image = ContactSheet(session.themeName()).image();
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !image.save(&file, "PNG", PngQuality) ||
        !file.commit()) {
        return fail("cannot write "_s + quoted(path) + ": "_s + file.errorString());
    }
    print(path + "\n"_s);
    return Fine;
}

int watch(ThemeQApplication &application, ThemeSession &session)
{
    // What the gallery knows about themes is where they are.
    ThemeFactory::getInstance()->setThemesRepositoryPath(
        QFileInfo(session.directory()).absolutePath());
    LivePreview preview(application, session,
                        [](const QString &directory) { return checkTheme(directory); });
    preview.window().show();
    return QApplication::exec();
}

void prepareEnvironment(bool watch)
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    if (!watch) {
        Gallery::prepareScreenshotEnvironment(1);
        qputenv("QT_QPA_PLATFORM", "offscreen");
        // Some of the desktops' plugins end the program when there is no display.
        qunsetenv("QT_QPA_PLATFORMTHEME");
        formerHandler = qInstallMessageHandler(passOnMessage);
    }
}

} // namespace

int runCommand(const PreviewOptions &options)
{
    if (!QFileInfo(options.directory).isDir()) {
        return fail(quoted(options.directory) + " is not a folder"_s);
    }
    if (options.watch && !options.out.isEmpty()) {
        return fail("--watch shows a window and writes no picture; leave --out away"_s);
    }
    if (options.watch && !Gallery::hasDisplay()) {
        return fail("--watch needs a display, and neither DISPLAY nor WAYLAND_DISPLAY is set"_s);
    }
    prepareEnvironment(options.watch);
    ProgramArguments &arguments = programArguments();
    ThemeQApplication application(arguments.count, arguments.values);

    const QString directory = QDir(options.directory).absolutePath();
    ThemeSession session(application, directory);
    if (!session.apply()) {
        return failToShow(options.directory, session.problem());
    }
    if (options.watch) {
        return watch(application, session);
    }
    return writeSheet(session, options.out.isEmpty() ? directory + ".png"_s : options.out);
}

} // namespace TARN::ThemeTool
