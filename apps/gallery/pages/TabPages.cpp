#include "pages/Arrangement.h"
#include "pages/Pages.h"
#include "pages/SamplePage.h"
#include "samples/Literals.h"
#include "samples/Symbols.h"

#include <QtCore/QEvent>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

namespace TARN::Gallery {

namespace {

constexpr int TabMargin = 12;
constexpr int PaneHeight = 80;

QWidget *tabContents(const QString &text)
{
    auto *label = new QLabel(text);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

QTabWidget *tabWidget(QTabWidget::TabPosition position, QTabWidget::TabShape shape)
{
    auto *tabs = new QTabWidget;
    tabs->setTabPosition(position);
    tabs->setTabShape(shape);
    tabs->addTab(tabContents("Image size and bit depth"_s), "Image"_s);
    tabs->addTab(tabContents("Measured particles"_s), "Results"_s);
    tabs->addTab(tabContents("Not available"_s), "Locked"_s);
    tabs->setTabEnabled(2, false);
    // The tabs themselves say how much room they need in the style at hand.
    tabs->tabBar()->ensurePolished();
    const QSize size = tabs->tabBar()->sizeHint() + QSize(TabMargin, TabMargin);
    tabs->setMinimumSize(size.expandedTo({0, PaneHeight}));
    return tabs;
}

QWidget *positions(QTabWidget::TabShape shape)
{
    return column(
        {evenRow({tabWidget(QTabWidget::North, shape), tabWidget(QTabWidget::South, shape)}),
         evenRow({tabWidget(QTabWidget::West, shape), tabWidget(QTabWidget::East, shape)})});
}

QTabWidget *iconTabs()
{
    QTabWidget *tabs = tabWidget(QTabWidget::North, QTabWidget::Rounded);
    tabs->setTabIcon(0, symbol("view.image"_s));
    tabs->setTabIcon(1, symbol("chart.column"_s));
    tabs->setTabIcon(2, symbol("action.lock"_s));
    return tabs;
}

QWidget *closableTabs()
{
    QTabWidget *tabs = iconTabs();
    tabs->setTabsClosable(true);
    tabs->setMovable(true);
    return tabs;
}

QWidget *documentTabs()
{
    QTabWidget *tabs = iconTabs();
    tabs->setDocumentMode(true);
    tabs->setTabsClosable(true);
    return tabs;
}

/// A tab bar whose last tab is coloured as links are.
class ColoredTabBar : public QTabBar
{
public:
    void colorLastTab() { setTabTextColor(count() - 1, palette().color(QPalette::Link)); }

protected:
    void changeEvent(QEvent *event) override
    {
        QTabBar::changeEvent(event);
        if (event->type() == QEvent::PaletteChange) {
            colorLastTab();
        }
    }
};

QTabBar *tabBar()
{
    auto *bar = new ColoredTabBar;
    for (const QString &name : {"Overview.tif"_s, "Heat zone.tif"_s, "Root.tif"_s,
                                "Base metal.tif"_s, "Etched.tif"_s, "Rejected.tif"_s}) {
        bar->addTab(symbol("view.image"_s), name);
    }
    bar->setCurrentIndex(1);
    bar->colorLastTab();
    return bar;
}

QWidget *scrollingBar()
{
    QTabBar *bar = tabBar();
    bar->setUsesScrollButtons(true);
    bar->setTabsClosable(true);
    return bar;
}

QWidget *elidingBar()
{
    QTabBar *bar = tabBar();
    bar->setUsesScrollButtons(false);
    bar->setElideMode(Qt::ElideMiddle);
    bar->setDrawBase(false);
    return bar;
}

} // namespace

QWidget *createTabsPage()
{
    auto *page = new SamplePage;
    page->addSample("Closable and movable, with icons"_s, closableTabs, 1);
    page->addSample("Document mode"_s, documentTabs, 1);
    page->addSample("More tabs than fit: scrolling"_s, scrollingBar);
    page->addSample("More tabs than fit: elided"_s, elidingBar);
    page->finish();
    return page;
}

QWidget *createTabPositionsPage()
{
    auto *page = new SamplePage;
    page->addSample(
        "At all four sides"_s, [] { return positions(QTabWidget::Rounded); }, 1);
    page->finish();
    return page;
}

QWidget *createTriangularTabsPage()
{
    auto *page = new SamplePage;
    page->addSample(
        "At all four sides"_s, [] { return positions(QTabWidget::Triangular); }, 1);
    page->finish();
    return page;
}

} // namespace TARN::Gallery
