#include "style/asking/Backgrounds.h"

#include "style/asking/OptionState.h"

namespace TARN {

ButtonBackground buttonBackground(const QStyleOption &option)
{
    const bool isChecked = has(option, QStyle::State_On);
    const bool isPressed = has(option, QStyle::State_Sunken);
    const auto resting =
        isChecked || isPressed ? ButtonBackground::Checked : ButtonBackground::AtRest;
    if (!isHovered(option) || isPressed) {
        return resting;
    }
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(&option);
    if (button && button->features.testFlag(QStyleOptionButton::Flat)) {
        return resting;
    }
    return isChecked ? ButtonBackground::Checked : ButtonBackground::Hovered;
}

TabBackground tabBackground(const QStyleOptionTab &option)
{
    if (has(option, QStyle::State_Selected)) {
        return TabBackground::Selected;
    }
    return isHovered(option) || (isEnabled(option) && hasKeyboardFocus(option))
               ? TabBackground::Hovered
               : TabBackground::AtRest;
}

} // namespace TARN
