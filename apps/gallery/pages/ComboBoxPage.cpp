#include "pages/Arrangement.h"
#include "pages/Pages.h"
#include "pages/SamplePage.h"
#include "samples/Literals.h"
#include "samples/SamplePictures.h"
#include "samples/Symbols.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QFontComboBox>
#include <QtWidgets/QLineEdit>

namespace TARN::Gallery {

namespace {

constexpr int SwatchExtent = 16;

QComboBox *plainCombo()
{
    auto *combo = new QComboBox;
    combo->addItems({"2.5×"_s, "5×"_s, "10×"_s, "20×"_s, "50×"_s});
    combo->insertSeparator(combo->count());
    combo->addItem("100× oil"_s);
    combo->setCurrentIndex(3);
    return combo;
}

QComboBox *editableCombo()
{
    auto *combo = new QComboBox;
    combo->setEditable(true);
    combo->addItems({"25 %"_s, "50 %"_s, "100 %"_s, "200 %"_s, "400 %"_s});
    combo->setCurrentIndex(2);
    return combo;
}

QComboBox *placeholderCombo()
{
    auto *combo = new QComboBox;
    combo->setEditable(true);
    combo->addItems({"Austenite"_s, "Ferrite"_s, "Pearlite"_s});
    combo->setCurrentIndex(-1);
    combo->lineEdit()->setPlaceholderText("Any phase"_s);
    return combo;
}

QComboBox *iconCombo()
{
    auto *combo = new QComboBox;
    combo->addItem(symbol("tool.ruler"_s), "Distance"_s);
    combo->addItem(symbol("measure.angle"_s), "Angle"_s);
    combo->addItem(symbol("measure.area"_s), "Area"_s);
    return combo;
}

QComboBox *colorCombo()
{
    auto *combo = new QComboBox;
    combo->addItem(swatch(QColor(229, 83, 75), SwatchExtent), "Red channel"_s);
    combo->addItem(swatch(QColor(70, 178, 98), SwatchExtent), "Green channel"_s);
    combo->addItem(swatch(QColor(64, 132, 230), SwatchExtent), "Blue channel"_s);
    combo->setCurrentIndex(1);
    return combo;
}

QComboBox *framelessCombo()
{
    QComboBox *combo = plainCombo();
    combo->setFrame(false);
    return combo;
}

QWidget *fontCombo()
{
    auto *combo = new QFontComboBox;
    combo->setCurrentFont(QFont("DejaVu Sans"_s));
    return combo;
}

QWidget *combos()
{
    return form({{"&Objective:"_s, plainCombo()},
                 {"&Measure:"_s, iconCombo()},
                 {"&Channel:"_s, colorCombo()},
                 {"Without a &frame:"_s, framelessCombo()}});
}

QWidget *editables()
{
    return form({{"&Zoom:"_s, editableCombo()}, {"&Phase:"_s, placeholderCombo()}});
}

QWidget *fonts()
{
    return form({{"&Label font:"_s, fontCombo()}});
}

} // namespace

QWidget *createComboBoxesPage()
{
    auto *page = new SamplePage;
    page->addSample("Plain and with icons"_s, combos);
    page->addSample("Editable"_s, editables);
    page->addSample("Fonts"_s, fonts);
    page->finish();
    return page;
}

} // namespace TARN::Gallery
