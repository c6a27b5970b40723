#include "Screenshots.h"

#include "MainWindow.h"
#include "Settling.h"
#include "pages/PageTable.h"
#include "samples/Literals.h"

#include <QtCore/QDir>
#include <QtGui/QImageWriter>
#include <QtWidgets/QApplication>

namespace TARN::Gallery {

namespace {

constexpr QSize WindowSize(1600, 960);

QString writePicture(const QImage &image, const QString &path)
{
    QImageWriter writer(path, "png");
    if (!writer.write(image)) {
        return "cannot write '"_s + path + "': "_s + writer.errorString();
    }
    return {};
}

} // namespace

void prepareScreenshotEnvironment(int scale)
{
    for (const char *name :
         {"QT_AUTO_SCREEN_SCALE_FACTOR", "QT_ENABLE_HIGHDPI_SCALING", "QT_FONT_DPI",
          "QT_SCREEN_SCALE_FACTORS", "QT_SCALE_FACTOR_ROUNDING_POLICY", "QT_USE_PHYSICAL_DPI"}) {
        qunsetenv(name);
    }
    qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

QString writeScreenshots(MainWindow &window, const QString &folder,
                         const std::function<void(const QString &)> &report)
{
    const QDir directory(folder);
    if (!directory.mkpath("."_s)) {
        return "cannot create the screenshot folder '"_s + folder + "'"_s;
    }
    QApplication::setCursorFlashTime(0);
    window.setFixedSize(WindowSize);
    window.show();
    for (int i = 0; i < pages().size(); ++i) {
        window.showPage(i);
        settle(window);
        const QString path = directory.filePath(pages().at(i).id + ".png"_s);
        QString problem = writePicture(window.grab().toImage(), path);
        if (!problem.isEmpty()) {
            return problem;
        }
        report(path);
    }
    return {};
}

} // namespace TARN::Gallery
