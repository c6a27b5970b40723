#include "pages/Arrangement.h"
#include "pages/Pages.h"
#include "pages/SamplePage.h"
#include "samples/Literals.h"
#include "samples/Symbols.h"

#include <QtCore/QTimer>
#include <QtWidgets/QActionGroup>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

namespace TARN::Gallery {

namespace {

void addAction(QMenu *menu, const QString &icon, const QString &text,
               const QKeySequence &shortcut = QKeySequence(), bool enabled = true)
{
    QAction *action = menu->addAction(symbol(icon), text);
    action->setShortcut(shortcut);
    // The samples stand side by side: their shortcuts are there to be seen.
    action->setShortcutContext(Qt::WidgetShortcut);
    action->setEnabled(enabled);
}

void addChoice(QMenu *menu, QActionGroup *group, const QString &text, bool checked)
{
    QAction *action = menu->addAction(text);
    action->setCheckable(true);
    action->setChecked(checked);
    if (group) {
        group->addAction(action);
    }
}

void fillMeasureMenu(QMenu *menu)
{
    addAction(menu, "tool.ruler"_s, "&Distance"_s);
    addAction(menu, "measure.angle"_s, "&Angle"_s);
    addAction(menu, "measure.area"_s, "A&rea"_s);
}

void fillEditMenu(QMenu *menu)
{
    addAction(menu, "action.undo"_s, "&Undo threshold"_s, QKeySequence("Ctrl+Z"_s));
    addAction(menu, "action.redo"_s, "&Redo"_s, QKeySequence("Ctrl+Shift+Z"_s), false);
    menu->addSeparator();
    addAction(menu, "action.copy"_s, "&Copy"_s, QKeySequence("Ctrl+C"_s));
    addAction(menu, "action.paste"_s, "&Paste"_s, QKeySequence("Ctrl+V"_s), false);
    addAction(menu, "action.delete"_s, "&Delete"_s, QKeySequence("Del"_s));
    menu->addSeparator();
    QMenu *measure = menu->addMenu(symbol("tool.ruler"_s), "&Measure"_s);
    fillMeasureMenu(measure);
}

void fillViewMenu(QMenu *menu)
{
    menu->addSection("Overlays"_s);
    addChoice(menu, nullptr, "&Scale bar"_s, true);
    addChoice(menu, nullptr, "&Grid"_s, false);
    menu->addSection("Zoom"_s);
    auto *zoom = new QActionGroup(menu);
    addChoice(menu, zoom, "50 %"_s, false);
    addChoice(menu, zoom, "100 %"_s, true);
    addChoice(menu, zoom, "Fit to window"_s, false);
}

// Shows a menu inside the page. What is chosen from it closes it, so it comes back.
QMenu *embeddedMenu(void (*fill)(QMenu *))
{
    auto *menu = new QMenu;
    menu->setWindowFlags(Qt::Widget);
    fill(menu);
    QObject::connect(menu, &QMenu::aboutToHide, menu,
                     [menu] { QTimer::singleShot(0, menu, &QWidget::show); });
    return menu;
}

QWidget *alignedTop(const QList<QWidget *> &widgets)
{
    auto *widget = new QWidget;
    auto *layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget *item : widgets) {
        layout->addWidget(item, 0, Qt::AlignTop);
    }
    layout->addStretch();
    return widget;
}

QWidget *menuBar()
{
    auto *bar = new QMenuBar;
    bar->setNativeMenuBar(false);
    bar->addMenu("&File"_s)->addAction(symbol("file.folder.open"_s), "&Open…"_s);
    fillEditMenu(bar->addMenu("&Edit"_s));
    fillViewMenu(bar->addMenu("&View"_s));
    fillMeasureMenu(bar->addMenu("&Measure"_s));
    bar->addMenu("&Locked"_s)->setEnabled(false);
    return bar;
}

QWidget *editMenu()
{
    QMenu *menu = embeddedMenu(fillEditMenu);
    menu->setActiveAction(menu->actions().at(3));
    return alignedTop({menu, embeddedMenu(fillMeasureMenu)});
}

QWidget *viewMenu()
{
    return alignedTop({embeddedMenu(fillViewMenu)});
}

} // namespace

QWidget *createMenusPage()
{
    auto *page = new SamplePage;
    page->addSample("Menu bar"_s, menuBar);
    page->addSample("Icons, shortcuts, a submenu and its entries"_s, editMenu);
    page->addSample("Sections, checkable and exclusive entries"_s, viewMenu);
    page->finish();
    return page;
}

} // namespace TARN::Gallery
