#include "pages/Arrangement.h"
#include "pages/Pages.h"
#include "pages/SamplePage.h"
#include "samples/Literals.h"
#include "samples/SampleModels.h"
#include "samples/Symbols.h"

#include <QtGui/QStandardItemModel>
#include <QtWidgets/QColumnView>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QListView>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QTreeWidget>

namespace TARN::Gallery {

namespace {

QListWidget *listOf(const QStringList &texts, const QString &icon)
{
    auto *list = new QListWidget;
    for (const QString &text : texts) {
        list->addItem(new QListWidgetItem(symbol(icon), text));
    }
    return list;
}

QWidget *plainList()
{
    QListWidget *list = listOf(
        {"Overview.tif"_s, "Heat zone.tif"_s, "Root.tif"_s, "Base metal.tif"_s, "Rejected.tif"_s},
        "view.image"_s);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->setCurrentRow(1);
    list->item(2)->setSelected(true);
    list->item(4)->setFlags(Qt::NoItemFlags);
    return list;
}

QWidget *checkList()
{
    QListWidget *list =
        listOf({"Area"_s, "Perimeter"_s, "Circularity"_s, "Feret diameter"_s, "Mean intensity"_s},
               "tool.ruler"_s);
    list->setAlternatingRowColors(true);
    for (int i = 0; i < list->count(); ++i) {
        list->item(i)->setCheckState(i < 3 ? Qt::Checked : Qt::Unchecked);
    }
    list->setCurrentRow(0);
    return list;
}

QWidget *iconView()
{
    auto *view = new QListView;
    view->setViewMode(QListView::IconMode);
    view->setIconSize({96, 72});
    view->setSpacing(12);
    view->setResizeMode(QListView::Adjust);
    view->setMovement(QListView::Static);
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view->setModel(imageModel(view));
    view->setCurrentIndex(view->model()->index(1, 0));
    return view;
}

QWidget *projectTree()
{
    auto *tree = new QTreeView;
    tree->setModel(projectModel(tree));
    tree->setAlternatingRowColors(true);
    tree->expandAll();
    tree->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    tree->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    tree->header()->setStretchLastSection(false);
    tree->setCurrentIndex(tree->model()->index(0, 0));
    return tree;
}

QWidget *deviceTree()
{
    auto *tree = new QTreeWidget;
    tree->setHeaderLabels({"Device"_s, "Value"_s});
    auto *camera = new QTreeWidgetItem(tree, {"Camera"_s, "Ready"_s});
    camera->setIcon(0, symbol("tool.camera"_s));
    new QTreeWidgetItem(camera, {"Exposure"_s, "12 ms"_s});
    new QTreeWidgetItem(camera, {"Gain"_s, "1.4"_s});
    auto *stage = new QTreeWidgetItem(tree, {"Stage"_s, "Not connected"_s});
    stage->setIcon(0, symbol("action.settings"_s));
    stage->setDisabled(true);
    tree->setSortingEnabled(true);
    tree->sortByColumn(0, Qt::AscendingOrder);
    tree->expandAll();
    tree->resizeColumnToContents(0);
    tree->setCurrentItem(camera->child(1));
    return tree;
}

// A table's rows are of one height whatever its font is, until they are told to follow it.
void fitRows(QTableView *table)
{
    table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
}

QWidget *particleTable()
{
    auto *table = new QTableView;
    table->setModel(particleModel(table));
    table->setSortingEnabled(true);
    table->sortByColumn(1, Qt::DescendingOrder);
    table->setAlternatingRowColors(true);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->resizeColumnsToContents();
    table->horizontalHeader()->setStretchLastSection(true);
    fitRows(table);
    table->setCurrentIndex(table->model()->index(1, 0));
    return table;
}

QWidget *calibrationTable()
{
    auto *table = new QTableWidget(3, 3);
    table->setHorizontalHeaderLabels({"Objective"_s, "Pixel size [µm]"_s, "Checked on"_s});
    table->setVerticalHeaderLabels({"A"_s, "B"_s, "C"_s});
    const QStringList texts = {"10×"_s,        "0.650"_s, "2024-03-17"_s, "20×"_s,       "0.325"_s,
                               "2024-03-17"_s, "50×"_s,   "0.130"_s,      "2023-11-02"_s};
    for (int i = 0; i < texts.size(); ++i) {
        table->setItem(i / 3, i % 3, new QTableWidgetItem(texts.at(i)));
    }
    table->setShowGrid(true);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    fitRows(table);
    table->setCurrentCell(1, 1);
    return table;
}

QWidget *columnView()
{
    auto *view = new QColumnView;
    QStandardItemModel *model = projectModel(view);
    // A column view paints what is disabled as if it were selected.
    for (int row = 0; row < model->rowCount(); ++row) {
        model->item(row)->setEnabled(true);
    }
    view->setModel(model);
    view->setColumnWidths({205, 205, 205});
    view->setCurrentIndex(model->index(1, 0, model->index(0, 0)));
    return view;
}

QHeaderView *header(Qt::Orientation orientation)
{
    auto *view = new QHeaderView(orientation);
    QStandardItemModel *model = particleModel(view);
    view->setModel(model);
    view->setSectionsClickable(true);
    view->setSectionsMovable(true);
    view->setHighlightSections(true);
    view->setSortIndicatorShown(orientation == Qt::Horizontal);
    view->setSortIndicator(1, Qt::AscendingOrder);
    view->resizeSections(QHeaderView::ResizeToContents);
    return view;
}

QWidget *horizontalHeader()
{
    QHeaderView *view = header(Qt::Horizontal);
    view->model()->setHeaderData(0, Qt::Horizontal, symbol("action.filter"_s), Qt::DecorationRole);
    view->resizeSections(QHeaderView::ResizeToContents);
    view->setMaximumHeight(view->sizeHint().height());
    return view;
}

QWidget *verticalHeader()
{
    QHeaderView *view = header(Qt::Vertical);
    view->setMinimumHeight(view->length() + 2 * view->frameWidth());
    return row({view});
}

} // namespace

QWidget *createListsPage()
{
    auto *page = new SamplePage;
    page->addSample("Icons, several selected, one disabled"_s, plainList, 1);
    page->addSample("Checkable, alternating rows"_s, checkList, 1);
    page->finish();
    return page;
}

QWidget *createIconViewPage()
{
    auto *page = new SamplePage;
    page->addSample("Thumbnails, one selected, one disabled"_s, iconView, 1);
    page->finish();
    return page;
}

QWidget *createTreesPage()
{
    auto *page = new SamplePage;
    page->addSample("Checkable layers, alternating rows"_s, projectTree, 3);
    page->addSample("Sorted"_s, deviceTree, 2);
    page->finish();
    return page;
}

QWidget *createTablesPage()
{
    auto *page = new SamplePage;
    page->addSample("Sorted, whole rows selected, one row disabled"_s, particleTable, 3);
    page->addSample("Single cells selected"_s, calibrationTable, 2);
    page->finish();
    return page;
}

QWidget *createColumnViewPage()
{
    auto *page = new SamplePage;
    page->addSample("Browsing a project"_s, columnView, 1);
    page->finish();
    return page;
}

QWidget *createHeadersPage()
{
    auto *page = new SamplePage;
    page->addSample("Horizontal, sorted by the second section"_s, horizontalHeader);
    page->addSample("Vertical"_s, verticalHeader);
    page->finish();
    return page;
}

} // namespace TARN::Gallery
