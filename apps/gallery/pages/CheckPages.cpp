#include "pages/Arrangement.h"
#include "pages/Pages.h"
#include "pages/SamplePage.h"
#include "samples/Literals.h"
#include "samples/Symbols.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QVBoxLayout>

namespace TARN::Gallery {

namespace {

QCheckBox *checkBox(const QString &text, Qt::CheckState state)
{
    auto *box = new QCheckBox(text);
    box->setTristate(state == Qt::PartiallyChecked);
    box->setCheckState(state);
    return box;
}

QRadioButton *radioButton(const QString &text, bool checked = false)
{
    auto *button = new QRadioButton(text);
    button->setChecked(checked);
    return button;
}

QGroupBox *group(const QString &title, const QList<QWidget *> &widgets)
{
    auto *box = new QGroupBox(title);
    auto *layout = new QVBoxLayout(box);
    for (QWidget *widget : widgets) {
        layout->addWidget(widget);
    }
    return box;
}

QWidget *checkStates()
{
    return row({checkBox("Unchecked"_s, Qt::Unchecked), checkBox("Partly"_s, Qt::PartiallyChecked),
                checkBox("Checked"_s, Qt::Checked)});
}

QWidget *iconChecks()
{
    QCheckBox *grid = checkBox("Show grid"_s, Qt::Checked);
    grid->setIcon(symbol("view.table"_s));
    QCheckBox *layers = checkBox("Show layers"_s, Qt::Unchecked);
    layers->setIcon(symbol("view.layer"_s));
    return row({grid, layers, checkBox(QString(), Qt::Checked)});
}

QWidget *checkGroup()
{
    return group("Overlays"_s, {checkBox("&Scale bar"_s, Qt::Checked),
                                checkBox("&Grain boundaries"_s, Qt::PartiallyChecked),
                                checkBox("&Annotations"_s, Qt::Unchecked),
                                checkBox("Date and &operator"_s, Qt::Checked)});
}

QWidget *radioStates()
{
    return row({radioButton("Manual"_s), radioButton("Automatic"_s, true)});
}

QWidget *iconRadios()
{
    QRadioButton *image = radioButton("Image"_s, true);
    image->setIcon(symbol("view.image"_s));
    QRadioButton *document = radioButton("Document"_s);
    document->setIcon(symbol("file.text"_s));
    return row({image, document});
}

QWidget *radioGroup()
{
    return group("Threshold"_s,
                 {radioButton("&Fixed value"_s), radioButton("&Otsu"_s, true),
                  radioButton("&Adaptive mean"_s), radioButton("&Local contrast"_s)});
}

QWidget *checkableGroup()
{
    auto *box = group("Correct shading"_s, {radioButton("From a reference image"_s, true),
                                            radioButton("From the image itself"_s),
                                            checkBox("Keep brightness"_s, Qt::Checked)});
    box->setCheckable(true);
    return box;
}

} // namespace

QWidget *createCheckBoxesPage()
{
    auto *page = new SamplePage;
    page->addSample("States"_s, checkStates);
    page->addSample("With an icon, without a text"_s, iconChecks);
    page->addSample("In a group"_s, checkGroup);
    page->addSample("In a group that can be switched off"_s, checkableGroup);
    page->finish();
    return page;
}

QWidget *createRadioButtonsPage()
{
    auto *page = new SamplePage;
    page->addSample("States"_s, radioStates);
    page->addSample("With an icon"_s, iconRadios);
    page->addSample("In a group"_s, radioGroup);
    page->finish();
    return page;
}

} // namespace TARN::Gallery
