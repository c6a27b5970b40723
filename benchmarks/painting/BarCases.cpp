#include "CaseTables.h"
#include "Symbol.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QToolBar>

namespace {

constexpr int barLength = 320;

/// Gives \a bar the height that it asks for.
QWidget *stretched(QWidget *bar)
{
    bar->ensurePolished();
    bar->resize(barLength, bar->sizeHint().height());
    return bar;
}

QWidget *menu()
{
    auto *menu = new QMenu;
    menu->addAction(symbol(), QStringLiteral("&Open"))->setShortcut(QKeySequence::Open);
    menu->addAction(QStringLiteral("&Save"))->setEnabled(false);
    menu->addSeparator();
    QAction *grid = menu->addAction(QStringLiteral("&Grid"));
    grid->setCheckable(true);
    grid->setChecked(true);
    menu->addMenu(QStringLiteral("&Export"))->addAction(QStringLiteral("&Image"));
    menu->addAction(QStringLiteral("&Quit"));
    return menu;
}

QWidget *menuBar()
{
    auto *bar = new QMenuBar;
    bar->setNativeMenuBar(false);
    for (const auto &title :
         {QStringLiteral("&File"), QStringLiteral("&Edit"), QStringLiteral("&Help")}) {
        bar->addMenu(title);
    }
    return stretched(bar);
}

QWidget *toolBar()
{
    auto *bar = new QToolBar;
    bar->addAction(symbol(), QStringLiteral("Open"));
    bar->addAction(symbol(), QStringLiteral("Save"));
    bar->addSeparator();
    bar->addAction(symbol(), QStringLiteral("Measure"))->setCheckable(true);
    bar->addWidget(new QLabel(QStringLiteral("Channel")));
    return stretched(bar);
}

QWidget *statusBar()
{
    auto *bar = new QStatusBar;
    bar->showMessage(QStringLiteral("Ready"));
    bar->addPermanentWidget(new QLabel(QStringLiteral("Connected")));
    return stretched(bar);
}

} // namespace

CaseTable barCases()
{
    using namespace States;
    return {
        {"QMenu", menu, {rest, entryHover}},
        {"QMenuBar", menuBar, {rest, entryHover, disabled}},
        {"QToolBar", toolBar, {rest, disabled}},
        {"QStatusBar", statusBar, {rest}},
    };
}
