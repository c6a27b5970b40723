#include "MixedWindow.h"

#include <resources/ThemeColorHelper.h>
#include <resources/ThemeResources.h>
#include <style/BaseStyle.h>
#include <style/ComboBoxDefaultItemDelegate.h>

#include <QtGui/QPainter>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QApplication>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QCommandLinkButton>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QDial>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QToolBox>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeView>

#include <support/Text.h>

using TARN::BaseStyle;
using TARN::ThemeResources;

namespace {

/// Shows the theme's values as a component of an application's own would: asked for by name on
/// every paint.
class ValueStrip : public QWidget
{
public:
    ValueStrip() { setFixedSize(400, 24); }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        const BaseStyle style;
        const QList<QBrush> brushes{ThemeResources::getBrush(text("MainBrush")),
                                    BaseStyle::getBorderBrush(true),
                                    BaseStyle::getBorderBrush(false),
                                    style.grooveBackgroundBrush(true),
                                    style.grooveBackgroundBrush(false),
                                    ThemeResources::getColor(text("MainColor")),
                                    TARN::ThemeColorHelper::disabled(QColor(200, 180, 160), true),
                                    TARN::ThemeColorHelper::disabled(QColor(20, 40, 60), false)};
        QPainter painter(this);
        int x = 0;
        for (const QBrush &brush : brushes) {
            painter.fillRect(x, 0, 20, height(), brush);
            x += 24;
        }
        painter.setFont(ThemeResources::getFont(text("large")));
        painter.drawText(x, height() - 6,
                         text("%1 %2")
                             .arg(ThemeResources::getCornerRadius(text("BaseSize")))
                             .arg(ThemeResources::getOpacity(text("RubberBandOpacity"))));
        QIcon::fromTheme(text("action.close")).paint(&painter, x + 60, 2, 20, 20);
        QPixmap picture(text(":/Icons/test_pictures/dot.svg"));
        painter.drawPixmap(x + 90, 4, picture);
    }
};

/// Shows the icon that the style highlights for its widget.
class HighlightedIcon : public QWidget
{
public:
    explicit HighlightedIcon(const char *name)
    {
        setProperty("highlightedIcon", text(name));
        setFixedSize(28, 28);
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QStyleOption option;
        option.initFrom(this);
        QPainter painter(this);
        style()->standardIcon(QStyle::SP_CustomBase, &option, this).paint(&painter, rect());
    }
};

/// Shows the list that a combo box opens, as a part of the window.
class OpenedList : public QWidget
{
public:
    explicit OpenedList(QComboBox *box)
        : m_view(box->view())
    {
        setFixedSize(160, 120);
        m_view->ensurePolished();
        m_view->setFixedSize(size());
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter(this).drawPixmap(0, 0, m_view->grab());
    }

private:
    QAbstractItemView *m_view;
};

QIcon applicationIcon()
{
    QPixmap pixmap(24, 24);
    pixmap.fill(QColor(20, 120, 220));
    return pixmap;
}

QLayout *buttons()
{
    auto *row = new QHBoxLayout;
    auto *standard = new QPushButton(text("&Standard"));
    auto *flat = new QPushButton(text("Flat"));
    flat->setFlat(true);
    auto *checked = new QPushButton(text("Checked"));
    checked->setCheckable(true);
    checked->setChecked(true);
    auto *disabled = new QPushButton(text("Disabled"));
    disabled->setEnabled(false);
    auto *tool = new QToolButton;
    tool->setText(text("Tool"));
    tool->setArrowType(Qt::DownArrow);
    auto *box = new QCheckBox(text("Check"));
    box->setCheckState(Qt::PartiallyChecked);
    auto *radio = new QRadioButton(text("Radio"));
    radio->setChecked(true);
    for (QWidget *widget : QWidgetList{standard, flat, checked, disabled, tool, box, radio}) {
        row->addWidget(widget);
    }
    return row;
}

QLayout *inputs()
{
    auto *row = new QHBoxLayout;
    auto *line = new QLineEdit(text("Line"));
    line->setClearButtonEnabled(true);
    auto *empty = new QLineEdit;
    empty->setPlaceholderText(text("Placeholder"));
    auto *combo = new QComboBox;
    combo->addItems({text("Combo"), text("Other")});
    combo->view();
    auto *editable = new QComboBox;
    editable->setEditable(true);
    editable->addItem(text("Editable"));
    auto *spin = new QSpinBox;
    spin->setEnabled(false);
    auto *date = new QDateEdit(QDate(2020, 2, 29));
    date->setCalendarPopup(true);
    for (QWidget *widget : QWidgetList{line, empty, combo, editable, spin, date}) {
        row->addWidget(widget);
    }
    return row;
}

QLayout *ranges()
{
    auto *row = new QHBoxLayout;
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setValue(40);
    slider->setTickPosition(QSlider::TicksBelow);
    auto *progress = new QProgressBar;
    progress->setValue(60);
    auto *scrollBar = new QScrollBar(Qt::Horizontal);
    auto *dial = new QDial;
    dial->setMaximumSize(40, 40);
    for (QWidget *widget : QWidgetList{slider, progress, scrollBar, dial}) {
        row->addWidget(widget);
    }
    return row;
}

QLayout *views()
{
    auto *row = new QHBoxLayout;
    auto *table = new QTableView;
    auto *tree = new QTreeView;
    auto *model = new QStandardItemModel(4, 3, table);
    for (int i = 0; i < 12; ++i) {
        auto *item = new QStandardItem(text("Item %1").arg(i));
        item->setCheckable(i % 3 == 0);
        item->setEnabled(i % 4 != 3);
        model->setItem(i / 3, i % 3, item);
    }
    model->item(0)->appendRow(new QStandardItem(text("Child")));
    table->setModel(model);
    table->setAlternatingRowColors(true);
    table->selectRow(1);
    tree->setModel(model);
    // A tree measures its items when it is expanded, and again only when the theme changes.
    tree->ensurePolished();
    tree->expandAll();
    tree->setEnabled(false);
    row->addWidget(table);
    row->addWidget(tree);
    return row;
}

QWidget *tabs()
{
    auto *tabs = new QTabWidget;
    // A tab bar sizes the buttons of its tabs when they are added.
    tabs->tabBar()->ensurePolished();
    tabs->setTabsClosable(true);
    auto *browser = new QTextBrowser;
    browser->setHtml(text("Rich text with a <a href='x'>link</a> and <b>more</b>"));
    tabs->addTab(browser, text("First"));
    tabs->addTab(new QLabel(text("Second page")), text("Second"));
    tabs->setTabEnabled(1, false);
    return tabs;
}

QWidget *group()
{
    auto *group = new QGroupBox(text("Group"));
    group->setCheckable(true);
    auto *layout = new QVBoxLayout(group);
    layout->addWidget(new QLabel(text("Label with a <a href='x'>link</a>")));
    layout->addWidget(new ValueStrip);
    auto *styled = new QLabel(text("Styled by the application"));
    styled->setStyleSheet(text("color: #c05010; border: 1px solid #10c050; padding: 2px"));
    layout->addWidget(styled);
    return group;
}

QMainWindow *mainWindow()
{
    auto *window = new QMainWindow(nullptr, Qt::Widget);
    auto *bar = window->addToolBar(text("Tools"));
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (const char *name : {"One tool", "Another tool", "A third tool", "The last tool"}) {
        bar->addAction(applicationIcon(), text(name));
    }
    auto *dock = new QDockWidget(text("Dock"));
    dock->setWidget(new QLabel(text("What the dock contains")));
    dock->setTitleBarWidget(new QLabel(text("Title of the dock")));
    window->addDockWidget(Qt::LeftDockWidgetArea, dock);
    window->setCentralWidget(new QLabel(text("Centre")));
    window->statusBar()->showMessage(text("Ready"));
    window->setFixedSize(300, 200);
    return window;
}

QToolBox *toolBox()
{
    auto *box = new QToolBox;
    box->addItem(new QLabel(text("First contents")), applicationIcon(), text("First"));
    box->addItem(new QLabel(text("Second contents")), text("Second"));
    box->setFixedSize(180, 200);
    return box;
}

QLayout *messages()
{
    auto *column = new QVBoxLayout;
    auto *box = new QMessageBox(QMessageBox::Warning, QString(), text("A message"),
                                QMessageBox::Ok | QMessageBox::Cancel);
    box->setWindowFlags(Qt::Widget);
    auto *link = new QCommandLinkButton(text("Command link"), text("What it does"));
    link->setIcon(QIcon::fromTheme(text("action.close")));
    auto *own = new QCommandLinkButton(text("With an icon of its own"));
    own->setIcon(applicationIcon());
    own->setEnabled(false);
    for (QWidget *widget : QWidgetList{box, link, own}) {
        column->addWidget(widget);
    }
    return column;
}

QTabWidget *iconTabs()
{
    auto *tabs = new QTabWidget;
    tabs->setProperty("largeTabSize", true);
    tabs->tabBar()->setProperty("smallTabSize", true);
    // A tab bar sizes the buttons of its tabs when they are added.
    tabs->tabBar()->ensurePolished();
    tabs->setTabsClosable(true);
    tabs->addTab(new QListWidget, applicationIcon(), text("Icon"));
    tabs->addTab(new QLabel, QIcon::fromTheme(text("action.close")), text("Theme icon"));
    return tabs;
}

QWidget *markedLabel(const char *mark)
{
    auto *label = new QLabel(text(mark));
    label->setProperty(mark, true);
    return label;
}

QLayout *marks()
{
    auto *column = new QVBoxLayout;
    auto *onOff = new QCheckBox(text("Switch"));
    onOff->setProperty("switch", true);
    auto *disabledPicture = new QLabel;
    disabledPicture->setPixmap(applicationIcon().pixmap(24, 24));
    disabledPicture->setEnabled(false);
    auto *disabledText = new QLabel(text("Disabled text"));
    disabledText->setEnabled(false);
    auto *minimized = new QScrollBar(Qt::Horizontal);
    minimized->setProperty("minimized", true);
    for (QWidget *widget :
         QWidgetList{onOff, disabledPicture, disabledText, minimized,
                     new HighlightedIcon("status.checked.circular.colored"),
                     new HighlightedIcon("action.close"), markedLabel("Pill_Font"),
                     markedLabel("CardWidgetBase_Title"), markedLabel("CardWidgetBase_Subtitle")}) {
        column->addWidget(widget);
    }
    return column;
}

/// A combo box with a separator, and the list that it opens.
QLayout *separatedList()
{
    auto *column = new QVBoxLayout;
    auto *box = new QComboBox;
    box->addItems({text("Above"), text("separator"), text("Below")});
    TARN::ComboBoxDefaultItemDelegate::setSeparator(box->model(), box->model()->index(1, 0));
    column->addWidget(box);
    column->addWidget(new OpenedList(box));
    return column;
}

QLayout *furtherWidgets()
{
    auto *row = new QHBoxLayout;
    row->addWidget(mainWindow());
    row->addWidget(toolBox());
    row->addLayout(messages());
    row->addWidget(iconTabs());
    row->addLayout(separatedList());
    row->addLayout(marks());
    return row;
}

} // namespace

std::unique_ptr<QWidget> createMixedWindow()
{
    auto window = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(window.get());
    auto *menuBar = new QMenuBar;
    menuBar->addMenu(text("&File"));
    menuBar->addMenu(text("&Edit"));
    layout->setMenuBar(menuBar);
    layout->addLayout(buttons());
    layout->addLayout(inputs());
    layout->addLayout(ranges());
    layout->addLayout(views());
    auto *lower = new QHBoxLayout;
    lower->addWidget(tabs());
    lower->addWidget(group());
    auto *calendar = new QCalendarWidget;
    calendar->setSelectedDate(QDate(2020, 2, 29));
    lower->addWidget(calendar);
    layout->addLayout(lower);
    layout->addLayout(furtherWidgets());
    auto *statusBar = new QStatusBar;
    statusBar->showMessage(text("Status"));
    layout->addWidget(statusBar);
    window->setFixedSize(1400, 1000);
    return window;
}

QImage render(QWidget &window)
{
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
    return window.grab().toImage().convertToFormat(QImage::Format_RGB32);
}
