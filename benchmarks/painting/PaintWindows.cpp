#include "PaintWindows.h"

#include "Symbol.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeWidget>

namespace {

constexpr QSize dataSize(1100, 700);

QWidget *lineEdit()
{
    return new QLineEdit(QStringLiteral("Sample 42"));
}

QWidget *comboBox()
{
    auto *box = new QComboBox;
    box->addItems({QStringLiteral("Contact"), QStringLiteral("Tapping")});
    return box;
}

QWidget *editableComboBox()
{
    QWidget *box = comboBox();
    box->setProperty("editable", true);
    return box;
}

/// Makes a widget that has a number, and shows it.
template <typename Widget>
QWidget *withValue()
{
    auto *widget = new Widget;
    widget->setValue(40);
    return widget;
}

QWidget *slider()
{
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setValue(40);
    return slider;
}

QWidget *dateEdit()
{
    auto *edit = new QDateEdit(QDate(2020, 2, 20));
    edit->setCalendarPopup(true);
    return edit;
}

using FieldMaker = QWidget *(*)();

/// Adds the fields, each with a label before it.
void addFields(QFormLayout &form, std::initializer_list<FieldMaker> fields)
{
    for (const FieldMaker makeField : fields) {
        form.addRow(QStringLiteral("Parameter %1:").arg(form.rowCount() + 1), makeField());
    }
}

QGroupBox *fieldGroup(const QString &title, std::initializer_list<FieldMaker> fields)
{
    auto *group = new QGroupBox(title);
    addFields(*new QFormLayout(group), fields);
    return group;
}

QGroupBox *optionGroup()
{
    constexpr int checkBoxCount = 6;
    constexpr int radioButtonCount = 4;
    auto *group = new QGroupBox(QStringLiteral("Options"));
    group->setCheckable(true);
    auto *column = new QVBoxLayout(group);
    for (int i = 0; i < checkBoxCount; ++i) {
        auto *box = new QCheckBox(QStringLiteral("Option %1").arg(i + 1));
        box->setChecked(i % 2 == 0);
        column->addWidget(box);
    }
    for (int i = 0; i < radioButtonCount; ++i) {
        auto *button = new QRadioButton(QStringLiteral("Choice %1").arg(i + 1));
        button->setChecked(i == 0);
        column->addWidget(button);
    }
    return group;
}

QTabWidget *notes()
{
    auto *page = new QWidget;
    auto *form = new QFormLayout(page);
    addFields(*form, {lineEdit, lineEdit});
    form->addRow(new QPlainTextEdit(QStringLiteral("The tip was changed.\n").repeated(3)));
    auto *tabs = new QTabWidget;
    tabs->addTab(page, QStringLiteral("Notes"));
    tabs->addTab(new QWidget, QStringLiteral("History"));
    return tabs;
}

QLayout *buttonRow()
{
    constexpr int toolButtonCount = 3;
    constexpr int pushButtonCount = 5;
    auto *row = new QHBoxLayout;
    for (int i = 0; i < toolButtonCount; ++i) {
        auto *button = new QToolButton;
        button->setIcon(symbol());
        row->addWidget(button);
    }
    row->addWidget(withValue<QProgressBar>());
    for (int i = 0; i < pushButtonCount; ++i) {
        auto *button = new QPushButton(QStringLiteral("Action %1").arg(i + 1));
        button->setDefault(i == 0);
        button->setEnabled(i != pushButtonCount - 1);
        row->addWidget(button);
    }
    return row;
}

QTreeWidget *tree()
{
    constexpr int groupCount = 12;
    constexpr int leafCount = 6;
    constexpr int nameWidth = 150;
    auto *tree = new QTreeWidget;
    tree->setHeaderLabels({QStringLiteral("Name"), QStringLiteral("Value")});
    for (int i = 0; i < groupCount; ++i) {
        auto *group = new QTreeWidgetItem(tree, {QStringLiteral("Scan %1").arg(i)});
        group->setIcon(0, symbol());
        for (int j = 0; j < leafCount; ++j) {
            new QTreeWidgetItem(group, {QStringLiteral("Parameter %1").arg(j), QString::number(j)});
        }
    }
    tree->expandAll();
    tree->setColumnWidth(0, nameWidth);
    tree->topLevelItem(1)->setSelected(true);
    return tree;
}

/// Returns a table of numbers, like a sheet to calculate in.
QTableWidget *sheet()
{
    constexpr int rowCount = 100;
    constexpr int columnCount = 6;
    auto *table = new QTableWidget(rowCount, columnCount);
    for (int row = 0; row < rowCount; ++row) {
        for (int column = 0; column < columnCount; ++column) {
            const double value = (row + 1) * 1.25 + column;
            table->setItem(row, column, new QTableWidgetItem(QString::number(value)));
        }
        table->item(row, 0)->setCheckState(row % 3 == 0 ? Qt::Checked : Qt::Unchecked);
    }
    table->selectRow(2);
    return table;
}

/// Returns a table of records, of which the user chooses one.
QTableWidget *records()
{
    QTableWidget *table = sheet();
    table->setHorizontalHeaderLabels({QStringLiteral("Date"), QStringLiteral("Operator"),
                                      QStringLiteral("Sample"), QStringLiteral("Height"),
                                      QStringLiteral("Width"), QStringLiteral("Remark")});
    table->horizontalHeader()->setSortIndicatorShown(true);
    table->verticalHeader()->hide();
    table->setShowGrid(false);
    table->setAlternatingRowColors(true);
    return table;
}

} // namespace

std::unique_ptr<QWidget> makeFormWindow()
{
    auto window = std::make_unique<QWidget>();
    auto *groups = new QHBoxLayout;
    groups->addWidget(
        fieldGroup(QStringLiteral("Sample"), {lineEdit, lineEdit, lineEdit, comboBox, comboBox,
                                              editableComboBox, withValue<QSpinBox>, dateEdit}));
    groups->addWidget(
        fieldGroup(QStringLiteral("Acquisition"),
                   {withValue<QSpinBox>, withValue<QDoubleSpinBox>, withValue<QSpinBox>, slider,
                    slider, comboBox, lineEdit, withValue<QProgressBar>}));
    groups->addWidget(optionGroup());
    auto *column = new QVBoxLayout(window.get());
    column->addLayout(groups);
    column->addWidget(notes());
    column->addLayout(buttonRow());
    return window;
}

std::unique_ptr<QWidget> makeDataWindow()
{
    auto *trees = new QSplitter(Qt::Vertical);
    trees->addWidget(tree());
    trees->addWidget(tree());
    auto *tables = new QSplitter(Qt::Vertical);
    tables->addWidget(sheet());
    tables->addWidget(records());
    auto window = std::make_unique<QSplitter>();
    window->addWidget(trees);
    window->addWidget(tables);
    window->setSizes({1, 1});
    window->resize(dataSize);
    return window;
}
