#include "states/Families.h"
#include "states/SampleMaking.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QRadioButton>

namespace TARN::Gallery {

namespace {

using Condition = ElementCondition;

constexpr QSize indicatorSize(20, 20);
constexpr QSize switchSize(36, 20);

WidgetMaker checkBox()
{
    return making<QCheckBox>([](QCheckBox &box) { box.setText(sampleText); });
}

WidgetMaker radioButton()
{
    return making<QRadioButton>([](QRadioButton &button) {
        button.setText(sampleText);
        // Alone, it could not be unchecked.
        button.setAutoExclusive(false);
    });
}

WidgetMaker switchBox()
{
    return with("switch", checkBox());
}

OptionMaker checkOption()
{
    return describing<QCheckBox, QStyleOptionButton>();
}

OptionMaker radioOption()
{
    return describing<QRadioButton, QStyleOptionButton>();
}

} // namespace

ElementFamily checkBoxFamily()
{
    const ElementStates twoValues =
        combined(markableStates(), {ElementState(), Condition::Checked});
    const ElementStates threeValues =
        combined(markableStates(), {ElementState(), Condition::Checked, Condition::PartlyChecked});
    return {QLatin1String("check-box-states"),
            QLatin1String("Check box states"),
            {
                {QStyle::CE_CheckBox, "Check box", threeValues, checkBox(), checkOption()},
                {QStyle::CE_CheckBox, "Switch", twoValues, switchBox(), checkOption()},
                {QStyle::CE_RadioButton, "Radio button", twoValues, radioButton(), radioOption()},
                {QStyle::PE_IndicatorCheckBox, "Indicator", threeValues, checkBox(), checkOption(),
                 indicatorSize},
                {QStyle::PE_IndicatorCheckBox, "Indicator of a switch", twoValues, switchBox(),
                 checkOption(), switchSize},
                {QStyle::PE_IndicatorRadioButton, "Indicator of a radio button", twoValues,
                 radioButton(), radioOption(), indicatorSize},
                {QStyle::CE_CheckBoxLabel, "Label", passiveStates(), checkBox(), checkOption()},
                {QStyle::CE_RadioButtonLabel, "Label of a radio button", passiveStates(),
                 radioButton(), radioOption()},
            }};
}

} // namespace TARN::Gallery
