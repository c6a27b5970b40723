#include "MainWindow.h"

#include "PageList.h"
#include "ThemeMenu.h"
#include "Themes.h"
#include "pages/PageTable.h"
#include "samples/Literals.h"
#include "samples/Symbols.h"

#include <theme/ThemeQApplication.h>

#include <QtGui/QScreen>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace TARN::Gallery {

namespace {

constexpr QSize InitialSize(1600, 960);
constexpr int ListWidth = 260;
constexpr double TitleScale = 1.6;

QLabel *pageTitle()
{
    auto *label = new QLabel;
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * TitleScale);
    font.setBold(true);
    label->setFont(font);
    return label;
}

} // namespace

MainWindow::MainWindow(ThemeQApplication &application, const QString &themeName)
    : m_application(application)
    , m_list(new PageList)
    , m_title(pageTitle())
    , m_stack(new QStackedWidget)
    , m_pageViews(pages().size())
    , m_themeMenu(new ThemeMenu(this))
    , m_themeButton(new QToolButton)
    , m_themeLabel(new QLabel)
{
    setWindowTitle("Theme gallery"_s);
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(m_title, 0, Qt::AlignLeading);
    layout->addWidget(m_stack, 1);

    auto *splitter = new QSplitter;
    splitter->addWidget(m_list);
    splitter->addWidget(page);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes({ListWidth, InitialSize.width() - ListWidth});
    setCentralWidget(splitter);

    createMenus();
    createToolBar();
    statusBar()->addPermanentWidget(m_themeLabel);
    connect(m_list, &PageList::currentPageChanged, this, &MainWindow::displayPage);
    connect(m_themeMenu, &ThemeMenu::themeChosen, this, &MainWindow::switchTheme);

    resize(InitialSize.boundedTo(screen()->availableSize()));
    displayTheme(themeName);
    showPage(0);
}

QAction *MainWindow::addWindowAction(const QString &icon, const QString &text,
                                     const QKeySequence &shortcut)
{
    auto *action = new QAction(icon.isEmpty() ? QIcon() : symbol(icon), text, this);
    action->setShortcut(shortcut);
    return action;
}

void MainWindow::createMenus()
{
    m_previous = addWindowAction("chevron.up"_s, "&Previous page"_s, QKeySequence("Alt+Up"_s));
    m_next = addWindowAction("chevron.down"_s, "&Next page"_s, QKeySequence("Alt+Down"_s));
    m_rightToLeft = addWindowAction("action.swap"_s, "&Right to left"_s, QKeySequence("Ctrl+R"_s));
    m_rightToLeft->setCheckable(true);
    m_rightToLeft->setChecked(layoutDirection() == Qt::RightToLeft);
    m_disabled = addWindowAction("view.hide"_s, "&Disabled"_s, QKeySequence("Ctrl+D"_s));
    m_disabled->setCheckable(true);
    QAction *find = addWindowAction("action.search"_s, "&Find a page"_s, QKeySequence::Find);
    QAction *quit = addWindowAction(QString(), "&Quit"_s, QKeySequence("Ctrl+Q"_s));

    menuBar()->addMenu("&File"_s)->addAction(quit);
    QMenu *view = menuBar()->addMenu("&View"_s);
    view->addActions({m_previous, m_next, find});
    view->addSeparator();
    view->addMenu(m_themeMenu);
    view->addActions({m_rightToLeft, m_disabled});
    QMenu *help = menuBar()->addMenu("&Help"_s);
    connect(help->addAction("&About the gallery"_s), &QAction::triggered, this,
            &MainWindow::showAbout);
    connect(help->addAction("About &Qt"_s), &QAction::triggered, &m_application,
            &QApplication::aboutQt);

    connect(m_previous, &QAction::triggered, this, [this] { m_list->movePage(-1); });
    connect(m_next, &QAction::triggered, this, [this] { m_list->movePage(1); });
    connect(m_rightToLeft, &QAction::toggled, this, &MainWindow::setRightToLeft);
    connect(m_disabled, &QAction::toggled, this, &MainWindow::setPagesDisabled);
    connect(find, &QAction::triggered, m_list, &PageList::focusSearch);
    connect(quit, &QAction::triggered, this, &QWidget::close);
}

void MainWindow::createToolBar()
{
    m_themeButton->setIcon(symbol("action.theme"_s));
    m_themeButton->setToolTip("Switch the theme"_s);
    m_themeButton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_themeButton->setMenu(m_themeMenu);
    m_themeButton->setPopupMode(QToolButton::InstantPopup);

    QToolBar *bar = addToolBar("Gallery"_s);
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addActions({m_previous, m_next});
    bar->addSeparator();
    m_themeButtonAction = bar->addWidget(m_themeButton);
    bar->addActions({m_rightToLeft, m_disabled});
}

void MainWindow::showPage(int index)
{
    m_list->setCurrentPage(index);
    m_list->setFocus();
}

void MainWindow::showFixedTheme(const QString &name)
{
    m_themeMenu->menuAction()->setVisible(false);
    m_themeButtonAction->setVisible(false);
    displayTheme(name);
}

void MainWindow::displayPage(int index)
{
    QScrollArea *&view = m_pageViews[index];
    if (!view) {
        view = createPageView(index);
        m_stack->addWidget(view);
    }
    m_stack->setCurrentWidget(view);
    m_title->setText(pages().at(index).title);
    m_previous->setEnabled(index > 0);
    m_next->setEnabled(index + 1 < pages().size());
    if (!m_keepsHiddenPages) {
        dropHiddenPages();
    }
}

void MainWindow::keepOnlyCurrentPage()
{
    m_keepsHiddenPages = false;
    dropHiddenPages();
}

void MainWindow::dropHiddenPages()
{
    for (QScrollArea *&view : m_pageViews) {
        if (view && view != m_stack->currentWidget()) {
            m_stack->removeWidget(view);
            view->deleteLater();
            view = nullptr;
        }
    }
}

QScrollArea *MainWindow::createPageView(int index)
{
    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(pages().at(index).create());
    area->widget()->setDisabled(m_disabled->isChecked());
    return area;
}

void MainWindow::switchTheme(const QString &name)
{
    QString problem = themeProblem(name);
    if (problem.isEmpty() && !m_application.setTheme(name)) {
        problem = "theme '"_s + name + "' cannot be applied"_s;
    }
    if (problem.isEmpty()) {
        displayTheme(name);
        return;
    }
    displayTheme(m_themeName);
    QMessageBox::warning(this, windowTitle(), "The theme was not switched: "_s + problem + "."_s);
}

void MainWindow::displayTheme(const QString &name)
{
    m_themeName = name;
    m_themeMenu->setCurrentTheme(name);
    m_themeButton->setText("Theme: "_s + name);
    m_themeLabel->setText("Theme: "_s + name);
}

void MainWindow::setRightToLeft(bool rightToLeft)
{
    QApplication::setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
}

// The areas around the pages stay enabled, so that they can be scrolled.
void MainWindow::setPagesDisabled(bool disabled)
{
    for (QScrollArea *view : qAsConst(m_pageViews)) {
        if (view) {
            view->widget()->setDisabled(disabled);
        }
    }
}

void MainWindow::showAbout()
{
    QMessageBox::about(
        this, "About the gallery"_s,
        "<h3>Theme gallery</h3><p>Every widget of the toolkit, enabled and disabled, "
        "in a theme of the repository<br>"_s +
            m_application.getThemeRepository().toHtmlEscaped() + "</p>"_s);
}

} // namespace TARN::Gallery
