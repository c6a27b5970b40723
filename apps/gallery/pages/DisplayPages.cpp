#include "pages/Arrangement.h"
#include "pages/Pages.h"
#include "pages/SamplePage.h"
#include "samples/Literals.h"
#include "samples/SamplePictures.h"
#include "samples/Symbols.h"

#include <QtWidgets/QFocusFrame>
#include <QtWidgets/QGraphicsItem>
#include <QtWidgets/QGraphicsProxyWidget>
#include <QtWidgets/QGraphicsScene>
#include <QtWidgets/QGraphicsView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QRubberBand>
#include <QtWidgets/QSizeGrip>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QStyleOptionFrame>
#include <QtWidgets/QStylePainter>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QUndoStack>
#include <QtWidgets/QUndoView>

namespace TARN::Gallery {

namespace {

constexpr QSize CanvasSize(480, 420);

// Looks like a tool tip, which otherwise only shows while the mouse rests.
class TipSample : public QLabel
{
public:
    explicit TipSample(const QString &text)
        : QLabel(text)
    {
        setForegroundRole(QPalette::ToolTipText);
        setMargin(1 + style()->pixelMetric(QStyle::PM_ToolTipLabelFrameWidth, nullptr, this));
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QStylePainter painter(this);
        QStyleOptionFrame option;
        option.initFrom(this);
        painter.drawPrimitive(QStyle::PE_PanelTipLabel, option);
        painter.end();
        QLabel::paintEvent(event);
    }
};

QWidget *tips()
{
    auto *button = new QToolButton;
    button->setIcon(symbol("tool.ruler"_s));
    button->setText("Point here"_s);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setToolTip("Measures the distance between two points"_s);
    button->setWhatsThis("Click the first point, then the second."_s);
    return column({row({button, new TipSample("Measures the distance between two points"_s)}),
                   row({new TipSample("<b>P-003</b><br>Area: 1284 µm²<br>Phase: ferrite"_s)})});
}

QWidget *statusBars()
{
    auto *message = new QStatusBar;
    message->showMessage("8 particles measured"_s);

    auto *detailed = new QStatusBar;
    auto *progress = new QProgressBar;
    progress->setValue(35);
    detailed->addWidget(new QLabel("Scanning"_s));
    detailed->addWidget(progress, 1);
    detailed->addPermanentWidget(new QLabel("20×"_s));
    detailed->addPermanentWidget(new QLabel("x 1204, y 377"_s));
    detailed->setSizeGripEnabled(false);

    auto *grip = new QSizeGrip(nullptr);
    return column({message, detailed, row({new QLabel("A size grip alone:"_s), grip})});
}

QWidget *rubberBands()
{
    auto *canvas = new QLabel;
    canvas->setPixmap(micrograph({320, 110}, 31));
    canvas->setFixedSize(320, 110);
    auto *region = new QRubberBand(QRubberBand::Rectangle, canvas);
    region->setGeometry(20, 16, 140, 78);
    region->show();
    auto *line = new QRubberBand(QRubberBand::Line, canvas);
    line->setGeometry(220, 10, 4, 90);
    line->show();
    return row({canvas});
}

QWidget *focusFrame()
{
    auto *edit = new QLineEdit("The frame stays with this input"_s);
    auto *holder = form({{"&Marked:"_s, edit}});
    holder->setContentsMargins(4, 4, 4, 4);
    auto *frame = new QFocusFrame(holder);
    frame->setWidget(edit);
    return holder;
}

QWidget *textBrowser()
{
    auto *browser = new QTextBrowser;
    browser->setOpenLinks(false);
    browser->setHtml(
        "<h2>Grain size</h2><p>The grain size is determined by the <a href=\"intercept\">intercept "
        "method</a>. Draw at least three lines; the number of boundaries that they cross gives the "
        "mean length.</p><table border=\"1\" cellspacing=\"0\" cellpadding=\"4\"><tr><th>Class</th>"
        "<th>Mean diameter</th></tr><tr><td>8</td><td>22 µm</td></tr><tr><td>9</td><td>16 µm</td>"
        "</tr><tr><td>10</td><td>11 µm</td></tr></table><p><code>measure grains --lines "
        "3</code></p>"_s);
    return browser;
}

QWidget *undoView()
{
    auto *view = new QUndoView;
    auto *stack = new QUndoStack(view);
    for (const QString &text : {"Open Heat zone.tif"_s, "Correct shading"_s, "Median filter"_s,
                                "Threshold"_s, "Fill holes"_s}) {
        stack->push(new QUndoCommand(text));
    }
    stack->undo();
    stack->setClean();
    view->setStack(stack);
    view->setCleanIcon(symbol("action.save"_s));
    view->setEmptyLabel("As acquired"_s);
    return view;
}

QWidget *graphicsView()
{
    auto *view = new QGraphicsView;
    auto *scene = new QGraphicsScene(view);
    scene->addPixmap(micrograph(CanvasSize, 41));
    const QPen pen(view->palette().color(QPalette::Highlight), 2);
    scene->addRect(60, 60, 180, 130, pen)->setFlag(QGraphicsItem::ItemIsMovable);
    scene->addEllipse(270, 150, 140, 140, pen)->setFlag(QGraphicsItem::ItemIsMovable);
    scene->addLine(60, 330, 420, 300, pen);
    auto *text = scene->addText("218 µm"_s);
    text->setDefaultTextColor(Qt::white);
    text->setPos(210, 282);
    auto *edit = new QLineEdit("An input inside the scene"_s);
    edit->resize(220, edit->sizeHint().height());
    scene->addWidget(edit)->setPos(60, 370);
    view->setScene(scene);
    view->setRenderHint(QPainter::Antialiasing);
    view->setDragMode(QGraphicsView::RubberBandDrag);
    return view;
}

} // namespace

QWidget *createTipsAndStatusPage()
{
    auto *page = new SamplePage;
    page->addSample("Tool tips"_s, tips);
    page->addSample("Status bars and size grips"_s, statusBars);
    page->addSample("Rubber bands"_s, rubberBands);
    page->addSample("Focus frame"_s, focusFrame);
    page->finish();
    return page;
}

QWidget *createDocumentsPage()
{
    auto *page = new SamplePage;
    page->addSample("Text browser"_s, textBrowser, 2);
    page->addSample("Undo history"_s, undoView, 1);
    page->finish();
    return page;
}

QWidget *createGraphicsViewPage()
{
    auto *page = new SamplePage;
    page->addSample("An annotated image"_s, graphicsView, 1);
    page->finish();
    return page;
}

} // namespace TARN::Gallery
