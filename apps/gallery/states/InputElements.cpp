#include "samples/Symbols.h"
#include "states/Families.h"
#include "states/SampleMaking.h"

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateEdit>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTextEdit>

namespace TARN::Gallery {

namespace {

using ComboBox = QStyleOptionComboBox;
using SpinBox = QStyleOptionSpinBox;

constexpr QSize signSize(16, 16);

OptionMaker lineEditOption()
{
    return describing<QLineEdit, QStyleOptionFrame>();
}

WidgetMaker comboBox()
{
    return making<QComboBox>([](QComboBox &box) { box.addItem(sampleText); });
}

WidgetMaker iconComboBox()
{
    return making<QComboBox>(
        [](QComboBox &box) { box.addItem(symbol("action.save"_s), sampleText); });
}

WidgetMaker editableComboBox()
{
    return with("editable", comboBox());
}

OptionMaker comboBoxOption()
{
    return describing<QComboBox, ComboBox>(
        [](ComboBox &option) { option.activeSubControls = QStyle::SC_ComboBoxArrow; });
}

/// Returns the list of a combo box in the frame in which it pops up.
QWidget *comboBoxContainer()
{
    auto *box = new QComboBox;
    return box->view()->parentWidget();
}

WidgetMaker spinBox(QAbstractSpinBox::ButtonSymbols symbols = QAbstractSpinBox::UpDownArrows)
{
    return making<QSpinBox>([symbols](QSpinBox &box) {
        box.setButtonSymbols(symbols);
        // In the middle, it can be stepped both ways.
        box.setValue(box.maximum() / 2);
    });
}

WidgetMaker dateEdit()
{
    return making<QDateEdit>([](QDateEdit &edit) { edit.setCalendarPopup(true); });
}

/// Returns the maker of the options of spin boxes, with \a part under the mouse.
OptionMaker spinBoxOption(QStyle::SubControl part)
{
    return describing<QSpinBox, SpinBox>(
        [part](SpinBox &option) { option.activeSubControls = part; });
}

/// Returns the maker of a part of a spin box.
WidgetMaker editOf(const WidgetMaker &box)
{
    return [box]() -> QWidget * { return box()->findChild<QLineEdit *>(); };
}

} // namespace

ElementFamily inputFamily()
{
    const auto edit = making<QLineEdit>();
    const QSize area(100, 48);
    return {QLatin1String("input-states"),
            QLatin1String("Input states"),
            {
                {QStyle::PE_PanelLineEdit, "Line edit", inputStates(), edit, lineEditOption()},
                {QStyle::PE_PanelLineEdit, "Line edit of a spin box", inputStates(),
                 editOf(spinBox()), lineEditOption()},
                {QStyle::PE_PanelLineEdit, "Line edit without buttons beside", inputStates(),
                 editOf(spinBox(QAbstractSpinBox::NoButtons)), lineEditOption()},
                {QStyle::PE_PanelLineEdit, "Line edit of a combo box", inputStates(),
                 editOf(editableComboBox()), lineEditOption()},
                {QStyle::PE_FrameLineEdit, "Frame of a line edit", inputStates(), edit,
                 lineEditOption()},
                {QStyle::PE_Frame, "Frame of a text edit", inputStates(), making<QTextEdit>(),
                 describing<QTextEdit, QStyleOptionFrame>(), area},
                {QStyle::PE_Frame, "Frame of a plain text edit", inputStates(),
                 making<QPlainTextEdit>(), describing<QPlainTextEdit, QStyleOptionFrame>(), area},
            }};
}

ElementFamily comboBoxFamily()
{
    return {QLatin1String("combo-box-states"),
            QLatin1String("Combo box states"),
            {
                {QStyle::CC_ComboBox, "Combo box", markableStates(), comboBox(), comboBoxOption()},
                {QStyle::CC_ComboBox, "Editable", markableStates(), editableComboBox(),
                 comboBoxOption()},
                {QStyle::CC_ComboBox, "Without frame", markableStates(),
                 with("frame", comboBox(), false), comboBoxOption()},
                {QStyle::CE_ComboBoxLabel, "Label", buttonStates(), comboBox(), comboBoxOption()},
                {QStyle::CE_ComboBoxLabel, "Label with icon", buttonStates(), iconComboBox(),
                 comboBoxOption()},
                {QStyle::PE_Frame, "Frame of the list", restingStates(), comboBoxContainer,
                 plain<QStyleOptionFrame>(), QSize(100, 48)},
            }};
}

ElementFamily spinBoxFamily()
{
    const OptionMaker up = spinBoxOption(QStyle::SC_SpinBoxUp);
    const OptionMaker down = spinBoxOption(QStyle::SC_SpinBoxDown);
    const WidgetMaker signs = spinBox(QAbstractSpinBox::PlusMinus);
    const WidgetMaker bare = spinBox(QAbstractSpinBox::NoButtons);
    return {
        QLatin1String("spin-box-states"),
        QLatin1String("Spin box states"),
        {
            {QStyle::CC_SpinBox, "Spin box, upper button", markableStates(), spinBox(), up},
            {QStyle::CC_SpinBox, "Spin box, lower button", markableStates(), spinBox(), down},
            {QStyle::CC_SpinBox, "Plus", markableStates(), signs, up},
            {QStyle::CC_SpinBox, "Minus", markableStates(), signs, down},
            {QStyle::CC_SpinBox, "Without buttons", inputStates(), bare, up},
            {QStyle::CC_SpinBox, "Without frame", markableStates(), with("frame", spinBox(), false),
             up},
            {QStyle::CC_ComboBox, "Date with calendar", markableStates(), dateEdit(),
             plain<ComboBox>([](ComboBox &option) {
                 option.subControls = QStyle::SC_All;
                 option.activeSubControls = QStyle::SC_ComboBoxArrow;
                 option.editable = true;
             })},
            {QStyle::PE_IndicatorArrowDown, "Arrow of a date with calendar", hoverableStates(),
             dateEdit(), plain(), signSize},
            {QStyle::PE_IndicatorSpinUp, "Arrow up", hoverableStates(), spinBox(), up, signSize},
            {QStyle::PE_IndicatorSpinDown, "Arrow down", hoverableStates(), spinBox(), down,
             signSize},
            {QStyle::PE_IndicatorSpinPlus, "Sign plus", hoverableStates(), signs, up, signSize},
            {QStyle::PE_IndicatorSpinMinus, "Sign minus", hoverableStates(), signs, down, signSize},
        }};
}

} // namespace TARN::Gallery
