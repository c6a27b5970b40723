#include "pages/Arrangement.h"
#include "pages/Pages.h"
#include "pages/SamplePage.h"
#include "samples/Literals.h"
#include "samples/SamplePictures.h"
#include "samples/Symbols.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLayout>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QSlider>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QToolButton>

namespace TARN::Gallery {

namespace {

constexpr QSize ViewSize(720, 480);
constexpr int DockMargin = 8;

struct ToolAction
{
    const char *icon;
    const char *text;
};

constexpr ToolAction FileActions[] = {{"file.folder.open", "Open"},
                                      {"action.save", "Save"},
                                      {"action.print", "Print"},
                                      {"action.copy", "Copy"}};
constexpr ToolAction ImageActions[] = {
    {"viewer.zoom.in", "Zoom in"}, {"viewer.zoom.out", "Zoom out"}, {"viewer.zoom.fit", "Fit"},
    {"arrow.clockwise", "Rotate"}, {"tool.crop", "Crop"},           {"action.filter", "Filter"},
    {"view.layer", "Layers"},      {"chart.column", "Histogram"}};

template <std::size_t Count>
void addActions(QToolBar *bar, const ToolAction (&actions)[Count])
{
    for (const ToolAction &action : actions) {
        bar->addAction(symbol(QString::fromUtf8(action.icon)), QString::fromUtf8(action.text));
    }
}

QMainWindow *mainWindow(quint32 seed)
{
    auto *window = new QMainWindow(nullptr, Qt::Widget);
    auto *view = new QLabel;
    view->setPixmap(micrograph(ViewSize, seed));
    view->setAlignment(Qt::AlignCenter);
    view->setMinimumSize(60, 40);
    view->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    window->setCentralWidget(view);
    return window;
}

QDockWidget *dock(const QString &title, QWidget *contents, QMainWindow *window)
{
    auto *widget = new QDockWidget(title, window);
    widget->setWidget(contents);
    return widget;
}

QListWidget *imageList()
{
    auto *list = new QListWidget;
    list->addItems({"Overview.tif"_s, "Heat zone.tif"_s, "Root.tif"_s});
    list->setCurrentRow(0);
    list->setMinimumSize(60, 40);
    return list;
}

QWidget *fileAndImageBars()
{
    QMainWindow *window = mainWindow(21);
    QToolBar *file = window->addToolBar("File"_s);
    addActions(file, FileActions);
    file->addSeparator();
    auto *zoom = new QComboBox;
    zoom->addItems({"50 %"_s, "100 %"_s, "200 %"_s});
    zoom->setCurrentIndex(1);
    file->addWidget(zoom);

    auto *side = new QToolBar("Image"_s);
    window->addToolBar(Qt::LeftToolBarArea, side);
    addActions(side, ImageActions);
    side->actions().at(4)->setCheckable(true);
    side->actions().at(4)->setChecked(true);
    return window;
}

QWidget *overflowingBars()
{
    QMainWindow *window = mainWindow(22);
    QToolBar *bar = window->addToolBar("Image"_s);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    addActions(bar, ImageActions);
    window->addToolBarBreak();
    QToolBar *file = window->addToolBar("File"_s);
    file->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    file->setMovable(false);
    addActions(file, FileActions);
    file->actions().at(2)->setEnabled(false);
    window->statusBar()->showMessage("12 ms · 2048 × 1536 · 16 bit"_s);
    return window;
}

QWidget *docks()
{
    QMainWindow *window = mainWindow(23);
    window->addDockWidget(Qt::LeftDockWidgetArea, dock("Images"_s, imageList(), window));
    auto *sliders = form(
        {{"&Gain:"_s, new QSlider(Qt::Horizontal)}, {"&Offset:"_s, new QSlider(Qt::Horizontal)}});
    sliders->layout()->setContentsMargins(DockMargin, DockMargin, DockMargin, DockMargin);
    QDockWidget *fixed = dock("Camera (cannot be moved)"_s, sliders, window);
    fixed->setFeatures(QDockWidget::NoDockWidgetFeatures);
    window->addDockWidget(Qt::BottomDockWidgetArea, fixed);
    return window;
}

QWidget *tabbedDocks()
{
    QMainWindow *window = mainWindow(24);
    QDockWidget *images = dock("Images"_s, imageList(), window);
    QDockWidget *layers = dock("Layers"_s, imageList(), window);
    QDockWidget *log = dock("Log"_s, imageList(), window);
    window->addDockWidget(Qt::RightDockWidgetArea, images);
    window->tabifyDockWidget(images, layers);
    window->tabifyDockWidget(layers, log);
    images->raise();
    QDockWidget *vertical = dock("Tools"_s, imageList(), window);
    vertical->setFeatures(vertical->features() | QDockWidget::DockWidgetVerticalTitleBar);
    window->addDockWidget(Qt::LeftDockWidgetArea, vertical);
    return window;
}

} // namespace

QWidget *createToolBarsPage()
{
    auto *page = new SamplePage;
    page->addSample("Horizontal and vertical"_s, fileAndImageBars, 1);
    page->addSample("With texts; the first one overflows"_s, overflowingBars, 1);
    page->finish();
    return page;
}

QWidget *createDockWindowsPage()
{
    auto *page = new SamplePage;
    page->addSample("Beside each other"_s, docks, 1);
    page->addSample("Tabbed, and with a vertical title"_s, tabbedDocks, 1);
    page->finish();
    return page;
}

} // namespace TARN::Gallery
