#include "Settling.h"

#include <QtCore/QAbstractAnimation>
#include <QtCore/QElapsedTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileSystemModel>
#include <QtWidgets/QWidget>

namespace TARN::Gallery {

namespace {

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

} // namespace

void settle(const QWidget &window)
{
    processEvents();
    waitForListings(window);
    processEvents();
    freezeAnimations(window);
}

} // namespace TARN::Gallery
