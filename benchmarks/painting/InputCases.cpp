#include "CaseTables.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTextEdit>

namespace {

constexpr QSize textSize(240, 120);

QWidget *lineEdit()
{
    return new QLineEdit(QStringLiteral("Sample 42"));
}

QWidget *clearableLineEdit()
{
    auto *edit = new QLineEdit(QStringLiteral("Sample 42"));
    edit->setClearButtonEnabled(true);
    return edit;
}

QComboBox *newComboBox()
{
    auto *box = new QComboBox;
    box->addItems({QStringLiteral("Contact"), QStringLiteral("Tapping")});
    return box;
}

QWidget *comboBox()
{
    return newComboBox();
}

QWidget *editableComboBox()
{
    QComboBox *box = newComboBox();
    box->setEditable(true);
    return box;
}

template <typename SpinBox>
QWidget *spinBox()
{
    auto *box = new SpinBox;
    box->setValue(50);
    return box;
}

QWidget *dateTimeEdit()
{
    return new QDateTimeEdit(QDateTime(QDate(2020, 2, 20), QTime(20, 20)));
}

QWidget *calendarEdit()
{
    auto *edit = new QDateEdit(QDate(2020, 2, 20));
    edit->setCalendarPopup(true);
    return edit;
}

template <typename Edit>
QWidget *textEdit()
{
    auto *edit = new Edit;
    edit->setPlainText(QStringLiteral("The tip approaches.\nThe sample is scanned.\n").repeated(9));
    edit->resize(textSize);
    return edit;
}

} // namespace

CaseTable inputCases()
{
    using namespace States;
    return {
        {"QLineEdit", lineEdit, {rest, hover, focus, readOnly, disabled}},
        {"QLineEdit clearable", clearableLineEdit, {rest}},
        {"QComboBox", comboBox, {rest, hover, focus, disabled}},
        {"QComboBox editable",
         editableComboBox,
         {rest, hover, focus, disabled},
         HighestRatioOnStyleSheet},
        {"QSpinBox",
         spinBox<QSpinBox>,
         {rest, hover, stepPressed, focus, disabled},
         HighestRatioOnStyleSheet,
         HighestCompleteSpinBoxRatio},
        {"QDoubleSpinBox",
         spinBox<QDoubleSpinBox>,
         {rest, disabled},
         HighestRatioOnStyleSheet,
         HighestCompleteSpinBoxRatio},
        {"QDateTimeEdit",
         dateTimeEdit,
         {rest, disabled},
         HighestRatioOnStyleSheet,
         HighestCompleteSpinBoxRatio},
        {"QDateEdit with calendar", calendarEdit, {rest, disabled}, HighestRatioOnStyleSheet},
        {"QTextEdit", textEdit<QTextEdit>, {rest, focus, disabled}},
        {"QPlainTextEdit", textEdit<QPlainTextEdit>, {rest, focus, disabled}},
    };
}
