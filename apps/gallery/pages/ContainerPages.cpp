#include "pages/Arrangement.h"
#include "pages/Pages.h"
#include "pages/SamplePage.h"
#include "samples/Literals.h"
#include "samples/SamplePictures.h"
#include "samples/Symbols.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMdiArea>
#include <QtWidgets/QMdiSubWindow>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QToolBox>
#include <QtWidgets/QVBoxLayout>

namespace TARN::Gallery {

namespace {

constexpr QSize LargePicture(900, 500);
constexpr QSize WindowPicture(720, 420);

QSpinBox *percentBox(int value)
{
    auto *box = new QSpinBox;
    box->setSuffix(" %"_s);
    box->setValue(value);
    return box;
}

QGroupBox *groupBox(const QString &title)
{
    auto *box = new QGroupBox(title);
    auto *layout = new QVBoxLayout(box);
    layout->addWidget(
        form({{"&Lower limit:"_s, percentBox(12)}, {"&Upper limit:"_s, percentBox(88)}}));
    return box;
}

QWidget *groupBoxes()
{
    QGroupBox *flat = groupBox("Flat"_s);
    flat->setFlat(true);
    return evenRow({groupBox("Histogram"_s), flat});
}

QWidget *checkableGroupBoxes()
{
    QGroupBox *on = groupBox("Stretch contrast"_s);
    on->setCheckable(true);
    QGroupBox *off = groupBox("Clip"_s);
    off->setCheckable(true);
    off->setChecked(false);
    return evenRow({on, off});
}

QWidget *toolBox()
{
    auto *box = new QToolBox;
    auto *filters = new QWidget;
    auto *layout = new QVBoxLayout(filters);
    layout->addWidget(new QCheckBox("Median, 3 × 3"_s));
    layout->addWidget(new QCheckBox("Remove background"_s));
    layout->addStretch();
    box->addItem(filters, symbol("action.filter"_s), "Filters"_s);
    box->addItem(new QLabel("Choose two points in the image."_s), symbol("tool.ruler"_s),
                 "Distance"_s);
    const int locked = box->addItem(new QLabel, symbol("action.lock"_s), "Administration"_s);
    box->setItemEnabled(locked, false);
    return box;
}

QTextEdit *pane(const QString &text)
{
    auto *edit = new QTextEdit;
    edit->setPlainText(text);
    edit->setMinimumSize(80, 40);
    return edit;
}

QWidget *splitters()
{
    auto *vertical = new QSplitter(Qt::Vertical);
    vertical->addWidget(pane("Results"_s));
    vertical->addWidget(pane("Log"_s));
    auto *horizontal = new QSplitter(Qt::Horizontal);
    horizontal->addWidget(pane("Project"_s));
    horizontal->addWidget(vertical);
    horizontal->setSizes({150, 300});
    return horizontal;
}

QWidget *scrollArea()
{
    auto *picture = new QLabel;
    picture->setPixmap(micrograph(LargePicture, 7));
    auto *area = new QScrollArea;
    area->setWidget(picture);
    area->setMinimumHeight(160);
    return area;
}

QWidget *stack()
{
    auto *stacked = new QStackedWidget;
    stacked->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    const QStringList texts = {"1. Choose a region"_s, "2. Set the threshold"_s, "3. Measure"_s};
    for (const QString &text : texts) {
        auto *label = new QLabel(text);
        label->setMargin(8);
        stacked->addWidget(label);
    }
    auto *next = new QPushButton("&Next step"_s);
    QObject::connect(next, &QPushButton::clicked, stacked, [stacked] {
        stacked->setCurrentIndex((stacked->currentIndex() + 1) % stacked->count());
    });
    return row({stacked, next});
}

QMdiSubWindow *addImageWindow(QMdiArea *area, const QString &title, quint32 seed,
                              const QRect &geometry)
{
    auto *picture = new QLabel;
    picture->setPixmap(micrograph(WindowPicture, seed));
    picture->setAlignment(Qt::AlignCenter);
    picture->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    QMdiSubWindow *window = area->addSubWindow(picture);
    window->setWindowTitle(title);
    window->setWindowIcon(symbol("view.image"_s));
    window->setGeometry(geometry);
    return window;
}

QWidget *mdiArea()
{
    auto *area = new QMdiArea;
    addImageWindow(area, "Overview.tif"_s, 11, QRect(14, 14, 340, 260));
    addImageWindow(area, "Heat zone.tif"_s, 12, QRect(130, 190, 340, 260));
    return area;
}

QWidget *tabbedMdiArea()
{
    auto *area = new QMdiArea;
    area->setViewMode(QMdiArea::TabbedView);
    area->setTabsClosable(true);
    addImageWindow(area, "Overview.tif"_s, 11, QRect(0, 0, 300, 120));
    addImageWindow(area, "Root.tif"_s, 13, QRect(0, 0, 300, 120))->showMaximized();
    return area;
}

} // namespace

QWidget *createGroupBoxesPage()
{
    auto *page = new SamplePage;
    page->addSample("Plain and flat"_s, groupBoxes);
    page->addSample("Checkable"_s, checkableGroupBoxes);
    page->addSample("Tool box"_s, toolBox, 1);
    page->finish();
    return page;
}

QWidget *createSplittersAndScrollAreasPage()
{
    auto *page = new SamplePage;
    page->addSample("Splitters"_s, splitters, 1);
    page->addSample("Scroll area"_s, scrollArea, 1);
    page->addSample("Stack"_s, stack);
    page->finish();
    return page;
}

QWidget *createSubWindowsPage()
{
    auto *page = new SamplePage;
    page->addSample("Free"_s, mdiArea, 5);
    page->addSample("Tabbed"_s, tabbedMdiArea, 2);
    page->finish();
    return page;
}

} // namespace TARN::Gallery
