#include "gallery/modes/PermittedDifferences.h"

#include "catalogue/Elements.h"

#include <QtCore/QString>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QColumnView>
#include <QtWidgets/QDial>
#include <QtWidgets/QFocusFrame>
#include <QtWidgets/QGraphicsView>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLCDNumber>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTreeView>

#include <algorithm>
#include <iterator>

namespace {

/// Returns \a rect of \a widget in \a window; nothing when it is not shown.
QRect inWindow(const QWidget &window, const QWidget &widget, const QRect &rect)
{
    return widget.isVisibleTo(&window) ? rect.translated(widget.mapTo(&window, QPoint())) : QRect();
}

template <typename Widget>
QRegion allOf(const QWidget &window)
{
    QRegion region;
    for (const Widget *widget : window.findChildren<const Widget *>()) {
        region += inWindow(window, *widget, widget->rect());
    }
    return region;
}

/// Returns where those widgets are that \a isMeant tells.
template <typename Widget>
QRegion those(const QWidget &window, bool (*isMeant)(const Widget &widget))
{
    QRegion region;
    for (const Widget *widget : window.findChildren<const Widget *>()) {
        if (isMeant(*widget)) {
            region += inWindow(window, *widget, widget->rect());
        }
    }
    return region;
}

QRegion toolBoxTabs(const QWidget &window)
{
    return those<QAbstractButton>(
        window, [](const QAbstractButton &button) { return button.inherits("QToolBoxButton"); });
}

QRegion dockButtons(const QWidget &window)
{
    return those<QAbstractButton>(window, [](const QAbstractButton &button) {
        return button.inherits("QDockWidgetTitleButton");
    });
}

QRegion spinArrows(const QWidget &window)
{
    constexpr int extent = 20;
    QRegion region;
    for (const auto *box : window.findChildren<const QAbstractSpinBox *>()) {
        region += inWindow(window, *box, QRect(box->width() - extent, 0, extent, box->height()));
    }
    return region;
}

QRegion disabledLineEdits(const QWidget &window)
{
    return those<QLineEdit>(window, [](const QLineEdit &edit) { return !edit.isEnabled(); });
}

QRegion flatGroupBoxes(const QWidget &window)
{
    return those<QGroupBox>(window, [](const QGroupBox &box) { return box.isFlat(); });
}

QRegion wholePage(const QWidget &window)
{
    return window.rect();
}

QRegion sortedSections(const QWidget &window)
{
    QRegion region;
    for (const QHeaderView *header : window.findChildren<const QHeaderView *>()) {
        if (header->isSortIndicatorShown()) {
            const int section = header->sortIndicatorSection();
            region += inWindow(window, *header->viewport(),
                               QRect(header->sectionViewportPosition(section), 0,
                                     header->sectionSize(section), header->height()));
        }
    }
    return region;
}

/// Returns what is before the items of trees.
QRegion branches(const QWidget &window)
{
    QRegion region;
    for (const QTreeView *tree : window.findChildren<const QTreeView *>()) {
        QModelIndex index = tree->indexAt(QPoint(1, 1));
        for (; index.isValid(); index = tree->indexBelow(index)) {
            const QRect item = tree->visualRect(index);
            region += inWindow(window, *tree->viewport(),
                               QRect(0, item.top(), item.left(), item.height()));
        }
    }
    return region;
}

QRegion treesAndTheirHeaders(const QWidget &window)
{
    return sortedSections(window) + branches(window);
}

/// Returns the cells of a page of states whose names begin or end with one of \a names.
template <std::size_t Size>
QRegion cells(const QWidget &window, const char *const (&names)[Size])
{
    QRegion region;
    for (const QWidget *cell : window.findChildren<const QWidget *>()) {
        const QString name = cell->objectName();
        const bool isNamed = std::any_of(std::begin(names), std::end(names), [&](const char *part) {
            return name.startsWith(QLatin1String(part)) || name.endsWith(QLatin1String(part));
        });
        if (isNamed) {
            region += inWindow(window, *cell, cell->rect());
        }
    }
    return region;
}

/// Returns the cells of a page of states that show one of \a elements, by the tips that name them.
QRegion cellsOf(const QWidget &window, const QStringList &elements)
{
    QRegion region;
    for (const QWidget *cell : window.findChildren<const QWidget *>()) {
        if (elements.contains(cell->toolTip().section(QLatin1Char('\n'), 0, 0))) {
            region += inWindow(window, *cell, cell->rect());
        }
    }
    return region;
}

/// Returns the cells of what the style paints in the complete mode only.
QRegion ownElements(const QWidget &window)
{
    QStringList names;
    for (const auto &rows : {TARN::Catalogue::primitives(), TARN::Catalogue::controls(),
                             TARN::Catalogue::complexControls()}) {
        for (const TARN::StyleElement &row : rows) {
            if (row.isPaintedInCompleteMode && !row.isPainted) {
                names.append(QLatin1String(row.name));
            }
        }
    }
    return cellsOf(window, names);
}

QRegion spinBoxCells(const QWidget &window)
{
    return cellsOf(window, {QStringLiteral("CC_SpinBox")});
}

QRegion titleBarCells(const QWidget &window)
{
    return cellsOf(window, {QStringLiteral("CC_TitleBar")});
}

QRegion toolBoxCells(const QWidget &window)
{
    return cellsOf(window, {QStringLiteral("CE_ToolBoxTab"), QStringLiteral("CE_ToolBoxTabShape")});
}

QRegion changedItemStates(const QWidget &window)
{
    static const char *const names[] = {
        "eyboard focus", "Closed branch",          "Open branch",
        "Drop place",    "Arrow of a column view", "Item of a combo box: Selected, disabled"};
    return cells(window, names);
}

QRegion comboBoxFrames(const QWidget &window)
{
    static const char *const names[] = {"Frame of the list"};
    return cells(window, names);
}

QRegion progressChunks(const QWidget &window)
{
    static const char *const names[] = {"Chunk"};
    return cells(window, names);
}

constexpr char everyPage[] = "";

struct Permission
{
    const char *page;
    const char *reason;
    QRegion (*where)(const QWidget &window);
};

const Permission permissions[] = {
    {everyPage, "What is left to the base style by default has the theme's look.", ownElements},
    {everyPage, "Arrows of spin boxes are those of all widgets.", spinArrows},
    {"spin-box-states", "So they are.", spinBoxCells},
    {"dials-and-scroll-bars", "Dials look as sliders do.", allOf<QDial>},
    {"group-boxes", "The tab of a tool box shows that it is open.", toolBoxTabs},
    {"tool-box-states", "So it does, and that the mouse or the keyboard is there.", toolBoxCells},
    {"window-states", "The buttons of title bars have icons of their own, in the colour of texts.",
     titleBarCells},
    {"dock-windows", "The button that has a dock float looks as that of windows.", dockButtons},
    {"headers", "The arrow of a sorted section keeps clear of its text.", sortedSections},
    {"tables", "The arrow of a sorted section keeps clear of its text.", sortedSections},
    {"file-dialog", "The arrow of a sorted section keeps clear of its text.", sortedSections},
    {"trees", "So it does, and the arrows of branches are in the colour of the text.",
     treesAndTheirHeaders},
    {"header-states",
     "The samples are not below a stylesheet, without which headers are the base "
     "style's by default.",
     wholePage},
    {"item-view-states",
     "The focus is seen, arrows and drop places are in the theme's colours, "
     "and all that is disabled is selected in one colour.",
     changedItemStates},
    {"column-view", "Selected items are in one colour, not in layers of a translucent one.",
     allOf<QColumnView>},
    {"calendar",
     "The bar is the window's, week-ends are in the theme's colour, and a day is "
     "selected in the colour of all selections.",
     allOf<QCalendarWidget>},
    {"combo-box-states",
     "The sample is not below a stylesheet, which is what frames lists by "
     "default.",
     comboBoxFrames},
    {"progress-bar-states", "The palette's selection is opaque.", progressChunks},
    {"graphics-view", "The palette's selection, in which shapes are drawn, is opaque.",
     allOf<QGraphicsView>},
    {"labels", "All that is disabled is in the same colour.", allOf<QLCDNumber>},
    {"tips-and-status", "All that is disabled is in the same colour.", allOf<QFocusFrame>},
    {"line-edits", "A line edit without a frame looks disabled when it is.", disabledLineEdits},
    {"group-boxes",
     "Below a stylesheet, what is in a flat group box lies where there would be no "
     "frame.",
     flatGroupBoxes},
    {"tabs", "Where fonts reach the buttons on tabs, these are as large as the tabs' letters.",
     allOf<QTabBar>},
};

} // namespace

QRegion permittedDifferences(const QString &id, const QWidget &window)
{
    QRegion region;
    for (const Permission &permission : permissions) {
        if (permission.page == everyPage || id == QLatin1String(permission.page)) {
            region += permission.where(window);
        }
    }
    return region;
}
