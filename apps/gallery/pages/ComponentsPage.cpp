#include "components/ButtonGroupWidget.h"
#include "components/CardWidget.h"
#include "components/MinimizedScrollBar.h"
#include "components/RangeSlider.h"
#include "pages/Arrangement.h"
#include "pages/Pages.h"
#include "pages/SamplePage.h"
#include "samples/Literals.h"
#include "samples/SamplePictures.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPlainTextEdit>

using namespace TARN::Components;

namespace TARN::Gallery {

namespace {

QWidget *cards()
{
    auto *text = new QLabel("1284 µm², the largest of eight particles"_s);
    text->setWordWrap(true);
    auto *footer = new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Close);
    auto *minimized =
        new CardWidget("Inclusions"_s, "2 found"_s, new QLabel("Hidden"_s), nullptr, true);
    return evenRow({new CardWidget("Particles"_s, "8 found"_s, text, footer), minimized});
}

QWidget *buttonGroups()
{
    const QStringList views = {"Image"_s, "Table"_s, "Chart"_s};
    const QStringList steps = {"Acquire"_s, "Segment"_s, "Measure"_s};
    return column({new ButtonGroupWidget(views, ButtonGroupWidget::Kind::Plain),
                   new ButtonGroupWidget(steps, ButtonGroupWidget::Kind::Workflow)});
}

QWidget *switches()
{
    QList<QWidget *> widgets;
    for (const bool isOn : {false, true}) {
        auto *widget = new QCheckBox(isOn ? "Live image on"_s : "Live image off"_s);
        widget->setProperty("switch", true);
        widget->setChecked(isOn);
        widgets.append(widget);
    }
    return row(widgets);
}

QWidget *pills()
{
    QList<QWidget *> widgets;
    for (const QString &text : {"Calibrated"_s, "16 bit"_s, "3 channels"_s}) {
        auto *pill = new QLabel(text);
        pill->setProperty("Pill_Font", true);
        widgets.append(pill);
    }
    return row(widgets);
}

QWidget *scrolledText()
{
    auto *edit = new QPlainTextEdit;
    edit->setPlainText(
        "The thin lines at the edges are scroll bars without buttons.\n\nThey are "
        "as long as their view, and what they scroll stays wide.\n\n\n\n\nThe end."_s);
    edit->setLineWrapMode(QPlainTextEdit::NoWrap);
    edit->setVerticalScrollBar(new MinimizedScrollBar(Qt::Vertical));
    edit->setHorizontalScrollBar(new MinimizedScrollBar(Qt::Horizontal));
    edit->setFixedHeight(90);
    return edit;
}

} // namespace

QWidget *createComponentsPage()
{
    auto *page = new SamplePage;
    page->addSample("Cards, the second one minimized"_s, cards);
    page->addSample("Button groups, plain and as a workflow"_s, buttonGroups);
    page->addSample("Range slider"_s, [] { return new RangeSlider(25, 70); });
    page->addSample("Switches"_s, switches);
    page->addSample("Pills"_s, pills);
    page->addSample("Minimized scroll bars"_s, scrolledText);
    page->finish();
    return page;
}

} // namespace TARN::Gallery
