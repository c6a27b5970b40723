#include "pages/Arrangement.h"
#include "pages/Pages.h"
#include "pages/SamplePage.h"
#include "samples/Literals.h"

#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QSpinBox>

namespace TARN::Gallery {

namespace {

// Pictures of the pages are compared from day to day.
QDateTime sampleDateTime()
{
    return {QDate(2024, 3, 17), QTime(10, 42, 30)};
}

QSpinBox *spinBox(int value, const QString &suffix = QString())
{
    auto *box = new QSpinBox;
    box->setRange(0, 5000);
    box->setValue(value);
    box->setSuffix(suffix);
    return box;
}

QDoubleSpinBox *doubleSpinBox(double value, int decimals, const QString &suffix)
{
    auto *box = new QDoubleSpinBox;
    box->setDecimals(decimals);
    box->setRange(0, 1000);
    box->setValue(value);
    box->setSuffix(suffix);
    return box;
}

QSpinBox *automaticBox()
{
    QSpinBox *box = spinBox(0, " ms"_s);
    box->setSpecialValueText("Automatic"_s);
    return box;
}

QSpinBox *plusMinusBox()
{
    QSpinBox *box = spinBox(4);
    box->setButtonSymbols(QAbstractSpinBox::PlusMinus);
    return box;
}

QSpinBox *buttonlessBox()
{
    QSpinBox *box = spinBox(255);
    box->setButtonSymbols(QAbstractSpinBox::NoButtons);
    return box;
}

QSpinBox *readOnlyBox()
{
    QSpinBox *box = spinBox(1280, " px"_s);
    box->setReadOnly(true);
    return box;
}

QDoubleSpinBox *prefixBox()
{
    QDoubleSpinBox *box = doubleSpinBox(1.4, 2, QString());
    box->setPrefix("γ = "_s);
    return box;
}

QDateEdit *calendarEdit()
{
    auto *edit = new QDateEdit(sampleDateTime().date());
    edit->setCalendarPopup(true);
    edit->setDisplayFormat("yyyy-MM-dd"_s);
    return edit;
}

QDateTimeEdit *dateTimeEdit(bool calendar)
{
    auto *edit = new QDateTimeEdit(sampleDateTime());
    edit->setCalendarPopup(calendar);
    edit->setDisplayFormat("yyyy-MM-dd HH:mm"_s);
    return edit;
}

QWidget *numbers()
{
    return form({{"&Repetitions:"_s, spinBox(3)},
                 {"&Pixel size:"_s, doubleSpinBox(0.325, 3, " µm"_s)},
                 {"&Gamma:"_s, prefixBox()},
                 {"&Exposure:"_s, automaticBox()}});
}

QWidget *buttonKinds()
{
    return form({{"&Binning:"_s, plusMinusBox()},
                 {"&Threshold:"_s, buttonlessBox()},
                 {"Image &width:"_s, readOnlyBox()}});
}

QWidget *dates()
{
    auto *date = new QDateEdit(sampleDateTime().date());
    date->setDisplayFormat("yyyy-MM-dd"_s);
    auto *time = new QTimeEdit(sampleDateTime().time());
    time->setDisplayFormat("HH:mm:ss"_s);
    return form({{"&Date:"_s, date},
                 {"&Time:"_s, time},
                 {"A&cquired:"_s, dateTimeEdit(false)},
                 {"&Valid until:"_s, calendarEdit()},
                 {"&Next calibration:"_s, dateTimeEdit(true)}});
}

QWidget *calendar(bool grid, QCalendarWidget::VerticalHeaderFormat weeks)
{
    auto *widget = new QCalendarWidget;
    widget->setSelectedDate(sampleDateTime().date());
    widget->setFirstDayOfWeek(Qt::Monday);
    widget->setGridVisible(grid);
    widget->setVerticalHeaderFormat(weeks);
    return widget;
}

} // namespace

QWidget *createSpinBoxesPage()
{
    auto *page = new SamplePage;
    page->addSample("Numbers"_s, numbers);
    page->addSample("Plus and minus, no buttons, read-only"_s, buttonKinds);
    page->finish();
    return page;
}

QWidget *createDateAndTimePage()
{
    auto *page = new SamplePage;
    page->addSample("Dates and times; the last two open a calendar"_s, dates);
    page->finish();
    return page;
}

QWidget *createCalendarPage()
{
    auto *page = new SamplePage;
    page->addSample(
        "With week numbers"_s, [] { return calendar(false, QCalendarWidget::ISOWeekNumbers); }, 1);
    page->addSample(
        "With a grid"_s, [] { return calendar(true, QCalendarWidget::NoVerticalHeader); }, 1);
    page->finish();
    return page;
}

} // namespace TARN::Gallery
