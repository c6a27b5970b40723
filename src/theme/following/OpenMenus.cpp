#include "theme/following/OpenMenus.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

#include <algorithm>
#include <vector>

namespace TARN {

namespace {

bool hasOpenMenu(const QAction *action)
{
    return action && action->menu() && action->menu()->isVisible();
}

/// Returns \a action, the entry that the menu opens which it has, and so on to the one that is
/// active.
QVector<QPointer<QAction>> pathFrom(QAction *action)
{
    QVector<QPointer<QAction>> actions{action};
    while (hasOpenMenu(action)) {
        action = action->menu()->activeAction();
        // To make an entry active opens its menu, which may be about to open only.
        if (action && (!action->menu() || hasOpenMenu(action))) {
            actions.append(action);
        }
    }
    return actions;
}

/// Keeps \a bar, \a actions and their menus from telling anything.
std::vector<QSignalBlocker> quiet(QMenuBar *bar, const QVector<QPointer<QAction>> &actions)
{
    std::vector<QSignalBlocker> blockers;
    blockers.emplace_back(bar);
    for (QAction *action : actions) {
        blockers.emplace_back(action);
        blockers.emplace_back(action->menu());
    }
    return blockers;
}

} // namespace

OpenMenus::OpenMenus()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        auto *bar = qobject_cast<QMenuBar *>(widget);
        if (bar && hasOpenMenu(bar->activeAction())) {
            m_paths.append({bar, pathFrom(bar->activeAction())});
        }
    }
}

void OpenMenus::follow() const
{
    for (const Path &path : m_paths) {
        const auto &actions = path.actions;
        const bool complete = std::all_of(actions.begin(), actions.end(),
                                          [](const QAction *action) { return action; });
        if (!complete || !path.bar || path.bar->activeAction() || !hasOpenMenu(actions.first())) {
            continue;
        }
        const std::vector<QSignalBlocker> blockers = quiet(path.bar, actions);
        path.bar->setActiveAction(actions.first());
        for (int i = 1; i < actions.size(); ++i) {
            if (QMenu *menu = actions[i - 1]->menu()) {
                menu->setActiveAction(actions[i]);
            }
        }
    }
}

} // namespace TARN
