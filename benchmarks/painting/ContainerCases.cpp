#include "CaseTables.h"
#include "Symbol.h"

#include <QtWidgets/QDockWidget>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMdiArea>
#include <QtWidgets/QMdiSubWindow>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QToolBox>

namespace {

constexpr QSize containerSize(240, 120);

template <typename Container>
Container *withPages(int (Container::*add)(QWidget *, const QString &))
{
    auto *container = new Container;
    for (const auto &title :
         {QStringLiteral("Image"), QStringLiteral("Results"), QStringLiteral("Log")}) {
        (container->*add)(new QWidget, title);
    }
    container->resize(containerSize);
    return container;
}

QTabBar *newTabBar()
{
    auto *bar = new QTabBar;
    bar->addTab(QStringLiteral("Image"));
    bar->addTab(symbol(), QStringLiteral("Results"));
    bar->addTab(QStringLiteral("Log"));
    return bar;
}

QWidget *tabBar()
{
    return newTabBar();
}

QWidget *verticalTabBar()
{
    QTabBar *bar = newTabBar();
    bar->setShape(QTabBar::RoundedWest);
    return bar;
}

QWidget *closableTabBar()
{
    QTabBar *bar = newTabBar();
    bar->setTabsClosable(true);
    return bar;
}

QWidget *tabWidget()
{
    return withPages<QTabWidget>(&QTabWidget::addTab);
}

QWidget *toolBox()
{
    return withPages<QToolBox>(&QToolBox::addItem);
}

QGroupBox *newGroupBox()
{
    auto *box = new QGroupBox(QStringLiteral("Acquisition"));
    box->resize(containerSize);
    return box;
}

QWidget *groupBox()
{
    return newGroupBox();
}

QWidget *checkableGroupBox()
{
    QGroupBox *box = newGroupBox();
    box->setCheckable(true);
    box->setChecked(false);
    return box;
}

QWidget *label()
{
    return new QLabel(QStringLiteral("Set point"));
}

template <QFrame::Shape shape>
QWidget *frame()
{
    auto *frame = new QFrame;
    frame->setFrameStyle(shape | QFrame::Sunken);
    frame->resize(containerSize);
    return frame;
}

QWidget *splitter()
{
    auto *splitter = new QSplitter;
    for (int i = 0; i < 3; ++i) {
        splitter->addWidget(new QWidget);
    }
    splitter->resize(containerSize);
    return splitter;
}

QWidget *dockWidget()
{
    auto *dock = new QDockWidget(QStringLiteral("Devices"));
    dock->setWidget(new QWidget);
    dock->resize(containerSize);
    return dock;
}

QWidget *mdiArea()
{
    auto *area = new QMdiArea;
    area->resize(containerSize);
    area->addSubWindow(new QWidget)->setWindowTitle(QStringLiteral("Image 1"));
    return area;
}

} // namespace

CaseTable containerCases()
{
    using namespace States;
    return {
        {"QTabBar", tabBar, {rest, hover, focus, disabled}},
        {"QTabBar vertical", verticalTabBar, {rest, hover}},
        {"QTabBar closable", closableTabBar, {rest}},
        {"QTabWidget", tabWidget, {rest, hover, disabled}},
        {"QToolBox", toolBox, {rest, disabled}},
        {"QGroupBox", groupBox, {rest, disabled}},
        {"QGroupBox checkable", checkableGroupBox, {rest, hover, checked, focus, disabled}},
        {"QLabel", label, {rest, disabled}},
        {"QFrame panel", frame<QFrame::StyledPanel>, {rest, disabled}},
        {"QFrame line", frame<QFrame::HLine>, {rest}},
        {"QSplitter", splitter, {rest}},
        {"QDockWidget", dockWidget, {rest, disabled}},
        {"QMdiArea", mdiArea, {rest}},
    };
}
