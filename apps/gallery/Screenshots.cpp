#include "Screenshots.h"

#include "MainWindow.h"
#include "pages/Literals.h"
#include "pages/PageTable.h"

#include <QtCore/QAbstractAnimation>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtGui/QImageWriter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileSystemModel>

namespace TARN::Gallery {

namespace {

constexpr QSize WindowSize(1600, 960);
constexpr int AnimationTime = 400; // milliseconds; shows a busy bar in the middle of its way
constexpr int ListingTime = 3000;  // milliseconds after which a slow disk is given up
constexpr int EventTime = 10;      // milliseconds
constexpr int SettlingRounds = 3;  // layouts of layouts take a few

void processEvents()
{
    for (int i = 0; i < SettlingRounds; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents(QEventLoop::AllEvents, EventTime);
    }
}

bool isListed(const QFileSystemModel &model)
{
    return model.rowCount(model.index(model.rootPath())) > 0;
}

// File dialogs list their folders from another thread.
void waitForListings(const QWidget &window)
{
    QElapsedTimer timer;
    timer.start();
    for (const auto *model : window.findChildren<QFileSystemModel *>()) {
        while (!isListed(*model) && timer.elapsed() < ListingTime) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents,
                                            EventTime);
        }
    }
}

void freezeAnimations(const QWidget &window)
{
    for (auto *animation : window.findChildren<QAbstractAnimation *>()) {
        if (animation->state() == QAbstractAnimation::Running) {
            animation->pause();
            animation->setCurrentTime(AnimationTime);
        }
    }
}

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
        processEvents();
        waitForListings(window);
        processEvents();
        freezeAnimations(window);
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
