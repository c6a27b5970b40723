#include "pages/EmbeddedDialog.h"
#include "pages/Pages.h"
#include "pages/SamplePage.h"
#include "samples/Literals.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QErrorMessage>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QFontDialog>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QProgressDialog>

namespace TARN::Gallery {

namespace {

// Makes a message box just as wide as it may be on a small screen, so that it looks alike on every
// screen. A text that is wider stays whole.
constexpr int TextWidth = 280;

QMessageBox *messageBox(QMessageBox::Icon icon, const QString &text, const QString &details,
                        QMessageBox::StandardButtons buttons)
{
    auto *box = new QMessageBox(icon, QString(), text, buttons);
    box->setInformativeText(details);
    if (auto *label = box->findChild<QLabel *>("qt_msgbox_label"_s)) {
        label->setMinimumWidth(qMax(TextWidth, label->sizeHint().width()));
    }
    return box;
}

QWidget *information()
{
    return embedded(messageBox(QMessageBox::Information, "The measurement is complete."_s,
                               "8 particles were found."_s, QMessageBox::Ok));
}

QWidget *question()
{
    return embedded(messageBox(QMessageBox::Question, "Save the changes to Heat zone.tif?"_s,
                               "Otherwise the three measurements are lost."_s,
                               QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel));
}

QWidget *warning()
{
    QMessageBox *box =
        messageBox(QMessageBox::Warning, "The objective is not calibrated."_s,
                   "Lengths will be given in pixels."_s, QMessageBox::Ok | QMessageBox::Cancel);
    box->setDetailedText("Last calibration: 2023-11-02"_s);
    return embedded(box);
}

QWidget *critical()
{
    return embedded(messageBox(QMessageBox::Critical, "The camera does not answer."_s,
                               "Check the cable, then try again."_s,
                               QMessageBox::Retry | QMessageBox::Abort));
}

QWidget *textInput()
{
    auto *dialog = new QInputDialog;
    dialog->setLabelText("Name of the sample:"_s);
    dialog->setTextValue("Weld seam 14"_s);
    return embedded(dialog);
}

QWidget *choiceInput()
{
    auto *dialog = new QInputDialog;
    dialog->setLabelText("Objective:"_s);
    dialog->setComboBoxItems({"10×"_s, "20×"_s, "50×"_s});
    dialog->setTextValue("20×"_s);
    return embedded(dialog);
}

QWidget *progress()
{
    auto *dialog = new QProgressDialog("Stitching image 17 of 24…"_s, "Cancel"_s, 0, 24);
    dialog->setMinimumDuration(0);
    dialog->setAutoReset(false);
    QWidget *widget = embedded(dialog);
    dialog->setValue(17);
    return widget;
}

QWidget *errorMessage()
{
    // The message shows the dialog, which has to be a part of the page by then.
    auto *dialog = new QErrorMessage;
    QWidget *widget = embedded(dialog);
    dialog->showMessage("Root.tif could not be read: unexpected end of file after 1.2 MB."_s);
    return widget;
}

QWidget *fileDialog()
{
    // Where the program is installed there is always something to list, and always the same.
    const QString folder =
        QCoreApplication::applicationDirPath() + "/../share/mox_common_theme/Themes"_s;
    auto *dialog = new QFileDialog;
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setOption(QFileDialog::DontUseCustomDirectoryIcons);
    dialog->setDirectory(QDir(folder).exists() ? QDir::cleanPath(folder) : QDir::rootPath());
    dialog->setSidebarUrls({QUrl::fromLocalFile(QDir::rootPath())});
    dialog->setNameFilters({"Themes (*.xml)"_s, "All files (*)"_s});
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setViewMode(QFileDialog::List);
    return embedded(dialog);
}

QWidget *colorDialog()
{
    auto *dialog = new QColorDialog(QColor(70, 178, 98));
    dialog->setOption(QColorDialog::DontUseNativeDialog);
    dialog->setOption(QColorDialog::ShowAlphaChannel);
    return embedded(dialog);
}

QWidget *fontDialog()
{
    auto *dialog = new QFontDialog(QFont("DejaVu Sans"_s, 11));
    dialog->setOption(QFontDialog::DontUseNativeDialog);
    return embedded(dialog);
}

} // namespace

QWidget *createMessageBoxesPage()
{
    auto *page = new SamplePage;
    page->addSample("Information"_s, information);
    page->addSample("Question"_s, question);
    page->addSample("Warning, with details"_s, warning);
    page->addSample("Critical"_s, critical);
    page->finish();
    return page;
}

QWidget *createInputDialogsPage()
{
    auto *page = new SamplePage;
    page->addSample("Text"_s, textInput);
    page->addSample("Choice"_s, choiceInput);
    page->addSample("Progress"_s, progress);
    page->addSample("Error message"_s, errorMessage);
    page->finish();
    return page;
}

QWidget *createFileDialogPage()
{
    auto *page = new SamplePage;
    page->addSample("Opening files"_s, fileDialog);
    page->finish();
    return page;
}

QWidget *createColorDialogPage()
{
    auto *page = new SamplePage;
    page->addSample("Choosing a colour"_s, colorDialog);
    page->finish();
    return page;
}

QWidget *createFontDialogPage()
{
    auto *page = new SamplePage;
    page->addSample("Choosing a font"_s, fontDialog);
    page->finish();
    return page;
}

} // namespace TARN::Gallery
