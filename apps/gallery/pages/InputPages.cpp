#include "pages/Arrangement.h"
#include "pages/Pages.h"
#include "pages/SamplePage.h"
#include "samples/Literals.h"
#include "samples/Symbols.h"

#include <QtGui/QDoubleValidator>
#include <QtWidgets/QAction>
#include <QtWidgets/QCompleter>
#include <QtWidgets/QKeySequenceEdit>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QTextEdit>

namespace TARN::Gallery {

namespace {

QLineEdit *placeholderEdit()
{
    auto *edit = new QLineEdit;
    edit->setPlaceholderText("Search images"_s);
    edit->addAction(symbol("action.search"_s), QLineEdit::LeadingPosition);
    return edit;
}

QLineEdit *clearableEdit()
{
    auto *edit = new QLineEdit("Weld seam 12"_s);
    edit->setClearButtonEnabled(true);
    return edit;
}

QLineEdit *passwordEdit()
{
    auto *edit = new QLineEdit("hematoxylin"_s);
    edit->setEchoMode(QLineEdit::Password);
    return edit;
}

QLineEdit *readOnlyEdit()
{
    auto *edit = new QLineEdit("IMG-2024-0317"_s);
    edit->setReadOnly(true);
    return edit;
}

QLineEdit *numberEdit()
{
    auto *edit = new QLineEdit("0.325"_s);
    edit->setValidator(new QDoubleValidator(0.001, 10.0, 3, edit));
    edit->setToolTip("From 0.001 to 10"_s);
    return edit;
}

QLineEdit *completedEdit()
{
    auto *edit = new QLineEdit("Ferr"_s);
    auto *completer = new QCompleter({"Austenite"_s, "Bainite"_s, "Carbide"_s, "Ferrite"_s,
                                      "Ferrite, acicular"_s, "Martensite"_s, "Pearlite"_s},
                                     edit);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    edit->setCompleter(completer);
    return edit;
}

QLineEdit *maskedEdit()
{
    auto *edit = new QLineEdit;
    edit->setInputMask("AA-9999-99;_"_s);
    edit->setText("WS-2024-12"_s);
    return edit;
}

QWidget *lineEdits()
{
    auto *frameless = new QLineEdit("Nital 3 %, 20 s"_s);
    frameless->setFrame(false);
    return form({{"&Sample:"_s, new QLineEdit("Weld seam 12, cross section"_s)},
                 {"&Find:"_s, placeholderEdit()},
                 {"&Project:"_s, clearableEdit()},
                 {"Pass&word:"_s, passwordEdit()},
                 {"&Image number:"_s, readOnlyEdit()},
                 {"Pixel si&ze [µm]:"_s, numberEdit()},
                 {"P&hase:"_s, completedEdit()},
                 {"&Code:"_s, maskedEdit()},
                 {"&Etchant:"_s, frameless}});
}

QWidget *keySequences()
{
    return form(
        {{"Shortcut for &snapshots:"_s, new QKeySequenceEdit(QKeySequence("Ctrl+Shift+S"_s))},
         {"Shortcut for &measuring:"_s, new QKeySequenceEdit}});
}

QWidget *richTextEdit()
{
    auto *edit = new QTextEdit;
    edit->setHtml("<h3>Findings</h3><p>The heat-affected zone is <b>1.8 mm</b> wide. Grain size "
                  "follows <i>class 9</i>; no cracks were found.</p><ul><li>Etchant: Nital "
                  "3 %</li><li>Objective: 20×</li></ul>"_s);
    edit->setMinimumHeight(150);
    return edit;
}

QWidget *plainTextEdit()
{
    auto *edit = new QPlainTextEdit("open \"Heat zone.tif\"\nthreshold otsu\n"
                                    "fill-holes --max-area 12\nmeasure area perimeter\n"
                                    "export \"particles.csv\""_s);
    edit->setMinimumHeight(110);
    return edit;
}

QWidget *emptyTextEdit()
{
    auto *edit = new QPlainTextEdit;
    edit->setPlaceholderText("Remarks for the report"_s);
    edit->setMinimumHeight(60);
    return edit;
}

QWidget *readOnlyTextEdit()
{
    auto *edit = new QTextEdit;
    edit->setReadOnly(true);
    edit->setPlainText("10:42  Camera connected\n10:43  Shading corrected\n10:45  8 particles "
                       "measured"_s);
    edit->setMinimumHeight(80);
    return edit;
}

} // namespace

QWidget *createLineEditsPage()
{
    auto *page = new SamplePage;
    page->addSample("Line edits"_s, lineEdits);
    page->addSample("Key sequences"_s, keySequences);
    page->finish();
    return page;
}

QWidget *createTextEditsPage()
{
    auto *page = new SamplePage;
    page->addSample("Rich text"_s, richTextEdit, 3);
    page->addSample("Plain text"_s, plainTextEdit, 2);
    page->addSample("Placeholder"_s, emptyTextEdit, 1);
    page->addSample("Read-only"_s, readOnlyTextEdit, 1);
    page->finish();
    return page;
}

} // namespace TARN::Gallery
