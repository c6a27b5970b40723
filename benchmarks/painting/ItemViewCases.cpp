#include "CaseTables.h"
#include "Symbol.h"

#include <QtGui/QStandardItemModel>
#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QTreeWidget>

namespace {

constexpr QSize viewSize(300, 160);
constexpr int rowCount = 20;
constexpr int columnCount = 4;

QString cellText(int row, int column)
{
    return QStringLiteral("%1.%2").arg(row).arg(column);
}

QListWidget *newList()
{
    auto *list = new QListWidget;
    for (int row = 0; row < rowCount; ++row) {
        list->addItem(cellText(row, 0));
    }
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->resize(viewSize);
    return list;
}

QWidget *list()
{
    return newList();
}

QWidget *checkableList()
{
    QListWidget *list = newList();
    for (int row = 0; row < rowCount; ++row) {
        list->item(row)->setCheckState(row % 2 == 0 ? Qt::Checked : Qt::Unchecked);
        list->item(row)->setIcon(symbol());
    }
    return list;
}

QWidget *table()
{
    auto *table = new QTableWidget(rowCount, columnCount);
    for (int row = 0; row < rowCount; ++row) {
        for (int column = 0; column < columnCount; ++column) {
            table->setItem(row, column, new QTableWidgetItem(cellText(row, column)));
        }
    }
    table->setAlternatingRowColors(true);
    table->resize(viewSize);
    return table;
}

QWidget *tree()
{
    auto *tree = new QTreeWidget;
    tree->setHeaderLabels({QStringLiteral("Name"), QStringLiteral("Value")});
    for (int row = 0; row < rowCount; ++row) {
        auto *item = new QTreeWidgetItem(tree, {cellText(row, 0), cellText(row, 1)});
        new QTreeWidgetItem(item, {cellText(row, 2), cellText(row, 3)});
    }
    tree->expandAll();
    tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    tree->resize(viewSize);
    return tree;
}

template <Qt::Orientation orientation>
QWidget *header()
{
    auto *header = new QHeaderView(orientation);
    auto *model = new QStandardItemModel(columnCount, columnCount, header);
    for (int section = 0; section < columnCount; ++section) {
        model->setHeaderData(section, orientation, QStringLiteral("Channel %1").arg(section));
    }
    header->setModel(model);
    header->setSectionsClickable(true);
    header->setHighlightSections(true);
    header->setSortIndicator(1, Qt::AscendingOrder);
    header->setSortIndicatorShown(orientation == Qt::Horizontal);
    header->resize(header->length(), header->length());
    header->ensurePolished();
    header->resize(orientation == Qt::Horizontal
                       ? QSize(header->length(), header->sizeHint().height())
                       : QSize(header->sizeHint().width(), header->length()));
    return header;
}

QWidget *calendar()
{
    auto *calendar = new QCalendarWidget;
    calendar->setSelectedDate(QDate(2020, 2, 20));
    return calendar;
}

} // namespace

CaseTable itemViewCases()
{
    using namespace States;
    return {
        {"QListWidget", list, {rest, hover, selected, focus, disabled}},
        {"QListWidget checkable", checkableList, {rest, disabled}},
        {"QTableWidget",
         table,
         {rest, hover, selected, disabled},
         HighestRatio,
         HighestCompleteViewRatio},
        {"QTreeWidget",
         tree,
         {rest, hover, selected, disabled},
         HighestRatio,
         HighestCompleteViewRatio},
        {"QHeaderView horizontal",
         header<Qt::Horizontal>,
         {rest, hover, pressed, disabled},
         HighestRatioOnStyleSheet,
         HighestCompleteViewRatio},
        {"QHeaderView vertical",
         header<Qt::Vertical>,
         {rest, hover, disabled},
         HighestRatioOnStyleSheet,
         HighestCompleteViewRatio},
        {"QCalendarWidget", calendar, {rest, disabled}},
    };
}
