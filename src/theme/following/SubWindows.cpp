#include "theme/following/SubWindows.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtGui/QResizeEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMdiArea>
#include <QtWidgets/QMdiSubWindow>

namespace TARN {

namespace {

QVector<QMdiSubWindow *> livingSubWindows()
{
    QVector<QMdiSubWindow *> windows;
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        if (auto *window = qobject_cast<QMdiSubWindow *>(widget)) {
            windows.append(window);
        }
    }
    return windows;
}

/// Returns the identifiers of the timers that run for \a window.
QVector<int> timersOf(QMdiSubWindow &window)
{
    QVector<int> timers;
    const auto *dispatcher = QAbstractEventDispatcher::instance();
    const auto running = dispatcher->registeredTimers(&window);
    for (const auto &timer : running) {
        timers.append(timer.timerId);
    }
    return timers;
}

/// Ends the time in which \a window paints a title of before a resize. It began since there were
/// \a formerTimers.
void endResize(QMdiSubWindow &window, const QSet<int> &formerTimers)
{
    const QVector<int> timers = timersOf(window);
    for (const int timer : timers) {
        if (!formerTimers.contains(timer)) {
            QTimerEvent end(timer);
            QCoreApplication::sendEvent(&window, &end);
        }
    }
    window.update();
}

} // namespace

SubWindows::SubWindows()
{
    const QVector<QMdiSubWindow *> windows = livingSubWindows();
    for (QMdiSubWindow *window : windows) {
        const QVector<int> timers = timersOf(*window);
        m_formerTimers.unite(QSet<int>(timers.begin(), timers.end()));
    }
}

void SubWindows::follow() const
{
    QSet<QMdiArea *> areasToArrange;
    const QVector<QMdiSubWindow *> windows = livingSubWindows();
    for (QMdiSubWindow *window : windows) {
        endResize(*window, m_formerTimers);
        if (window->isMinimized() && window->mdiArea()) {
            areasToArrange.insert(window->mdiArea());
        }
    }
    for (QMdiArea *area : qAsConst(areasToArrange)) {
        // It is then that an area arranges the minimized ones.
        QWidget *viewport = area->viewport();
        QResizeEvent resize(viewport->size(), viewport->size());
        QCoreApplication::sendEvent(viewport, &resize);
    }
}

} // namespace TARN
