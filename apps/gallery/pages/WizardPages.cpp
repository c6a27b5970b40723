#include "pages/Arrangement.h"
#include "pages/EmbeddedDialog.h"
#include "pages/Pages.h"
#include "pages/SamplePage.h"
#include "samples/Literals.h"
#include "samples/SamplePictures.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>
#include <QtWidgets/QWizard>

namespace TARN::Gallery {

namespace {

constexpr QSize BannerSize(64, 56);
constexpr QSize WatermarkSize(120, 300);

QWizardPage *wizardPage(const QString &title, const QString &subTitle, QWidget *contents)
{
    auto *page = new QWizardPage;
    page->setTitle(title);
    page->setSubTitle(subTitle);
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(contents);
    layout->addStretch();
    return page;
}

QWizard *wizard(QWizard::WizardStyle style)
{
    auto *dialog = new QWizard;
    dialog->setWizardStyle(style);
    dialog->setOption(QWizard::HaveHelpButton);
    dialog->addPage(wizardPage("Calibrate an objective"_s,
                               "Place the stage micrometer under the microscope."_s,
                               form({{"&Objective:"_s, new QLineEdit("20×"_s)},
                                     {"&Division [µm]:"_s, new QLineEdit("10"_s)}})));
    dialog->addPage(wizardPage("Check the result"_s, "Confirm the measured pixel size."_s,
                               column({new QCheckBox("Use for all cameras"_s)})));
    return dialog;
}

QWidget *classicWizard()
{
    return embedded(wizard(QWizard::ClassicStyle));
}

QWidget *watermarkedWizard()
{
    QWizard *dialog = wizard(QWizard::ClassicStyle);
    dialog->page(0)->setPixmap(QWizard::WatermarkPixmap, micrograph(WatermarkSize, 51));
    dialog->page(0)->setSubTitle(QString());
    return embedded(dialog);
}

QWidget *modernWizard()
{
    QWizard *dialog = wizard(QWizard::ModernStyle);
    dialog->setPixmap(QWizard::LogoPixmap, micrograph(BannerSize, 52));
    return embedded(dialog);
}

QWidget *optionalWizard()
{
    QWizard *dialog = wizard(QWizard::ModernStyle);
    dialog->setOption(QWizard::HaveFinishButtonOnEarlyPages);
    dialog->setOption(QWizard::CancelButtonOnLeft);
    return embedded(dialog);
}

} // namespace

QWidget *createClassicWizardPage()
{
    auto *page = new SamplePage;
    page->addSample("With a subtitle"_s, classicWizard, 1);
    page->addSample("With a watermark"_s, watermarkedWizard, 1);
    page->finish();
    return page;
}

QWidget *createModernWizardPage()
{
    auto *page = new SamplePage;
    page->addSample("With a logo"_s, modernWizard, 1);
    page->addSample("With more buttons"_s, optionalWizard, 1);
    page->finish();
    return page;
}

} // namespace TARN::Gallery
