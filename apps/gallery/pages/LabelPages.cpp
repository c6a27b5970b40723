#include "pages/Arrangement.h"
#include "pages/Pages.h"
#include "pages/SamplePage.h"
#include "samples/Literals.h"
#include "samples/SamplePictures.h"

#include <QtWidgets/QFrame>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLCDNumber>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

namespace TARN::Gallery {

namespace {

constexpr QSize PictureSize(120, 80);

QLabel *label(const QString &text)
{
    auto *widget = new QLabel(text);
    widget->setWordWrap(true);
    return widget;
}

QWidget *texts()
{
    auto *buddy = new QLabel("&Operator:"_s);
    auto *edit = new QLineEdit("M. Keller"_s);
    buddy->setBuddy(edit);
    return column({label("Grain size number 9.2 (ASTM E112)"_s),
                   label("Eight particles were found in an area of 0.42 mm². The largest is "
                         "P-003 with 1284 µm²; one inclusion was left out."_s),
                   row({buddy, edit})});
}

QWidget *richTexts()
{
    QLabel *link = label("See the <a href=\"calibration\">calibration</a> of the 20× objective."_s);
    link->setTextInteractionFlags(Qt::TextBrowserInteraction);
    QLabel *selectable = label("Serial number 4711-0815 (can be selected)"_s);
    selectable->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return column({label("<b>Mean area:</b> 391.9 µm² &nbsp; <i>σ</i> = 392.3 µm²<sup>†</sup>"_s),
                   link, selectable});
}

QWidget *pictures()
{
    auto *plain = new QLabel;
    plain->setPixmap(micrograph(PictureSize, 3));
    auto *framed = new QLabel;
    framed->setPixmap(micrograph(PictureSize, 4));
    framed->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    return row({plain, framed});
}

QWidget *numbers()
{
    QList<QWidget *> displays;
    for (const auto style : {QLCDNumber::Outline, QLCDNumber::Filled, QLCDNumber::Flat}) {
        auto *display = new QLCDNumber(6);
        display->setSegmentStyle(style);
        display->display(391.9);
        display->setMinimumHeight(40);
        displays.append(display);
    }
    return evenRow(displays);
}

QLabel *frame(const QString &name, int shape, int shadow)
{
    auto *widget = new QLabel(name);
    widget->setAlignment(Qt::AlignCenter);
    widget->setFrameStyle(shape | shadow);
    widget->setMinimumHeight(36);
    return widget;
}

struct NamedValue
{
    const char *name;
    int value;
};

constexpr NamedValue Shapes[] = {{"No frame", QFrame::NoFrame},   {"Box", QFrame::Box},
                                 {"Panel", QFrame::Panel},        {"Window", QFrame::WinPanel},
                                 {"Styled", QFrame::StyledPanel}, {"H line", QFrame::HLine},
                                 {"V line", QFrame::VLine}};
constexpr NamedValue Shadows[] = {
    {"Plain", QFrame::Plain}, {"Raised", QFrame::Raised}, {"Sunken", QFrame::Sunken}};

QWidget *frameTable()
{
    auto *widget = new QWidget;
    auto *grid = new QGridLayout(widget);
    grid->setContentsMargins(0, 0, 0, 0);
    int column = 1;
    for (const NamedValue &shadow : Shadows) {
        grid->addWidget(new QLabel(QString::fromUtf8(shadow.name)), 0, column++, Qt::AlignCenter);
    }
    for (const NamedValue &shape : Shapes) {
        const int row = grid->rowCount();
        grid->addWidget(new QLabel(QString::fromUtf8(shape.name)), row, 0);
        column = 1;
        for (const NamedValue &shadow : Shadows) {
            const bool isLine = shape.value == QFrame::HLine || shape.value == QFrame::VLine;
            grid->addWidget(frame(isLine ? QString() : "Preview"_s, shape.value, shadow.value), row,
                            column++);
        }
    }
    return widget;
}

QWidget *wideFrames()
{
    auto *box = frame("Box, 3 pixels and a middle line"_s, QFrame::Box, QFrame::Raised);
    box->setLineWidth(1);
    box->setMidLineWidth(2);
    auto *panel = frame("Panel, 3 pixels"_s, QFrame::Panel, QFrame::Sunken);
    panel->setLineWidth(3);
    return column({box, panel});
}

} // namespace

QWidget *createLabelsPage()
{
    auto *page = new SamplePage;
    page->addSample("Text"_s, texts);
    page->addSample("Rich text, links, selectable text"_s, richTexts);
    page->addSample("Pictures"_s, pictures);
    page->addSample("Segment displays"_s, numbers);
    page->finish();
    return page;
}

QWidget *createFramesPage()
{
    auto *page = new SamplePage;
    page->addSample("Shapes and shadows"_s, frameTable);
    page->addSample("Wide lines"_s, wideFrames);
    page->finish();
    return page;
}

} // namespace TARN::Gallery
