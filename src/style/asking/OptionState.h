#pragma once

#include <QtWidgets/QStyleOption>

/// What the state of an option means for painting.
namespace TARN {

inline bool has(const QStyleOption &option, QStyle::StateFlag flag)
{
    return option.state.testFlag(flag);
}

inline bool isEnabled(const QStyleOption &option)
{
    return has(option, QStyle::State_Enabled);
}

inline bool isHovered(const QStyleOption &option)
{
    return isEnabled(option) && has(option, QStyle::State_MouseOver);
}

/// Tells whether the focus came by keyboard.
inline bool hasKeyboardFocus(const QStyleOption &option)
{
    return has(option, QStyle::State_HasFocus) && has(option, QStyle::State_KeyboardFocusChange);
}

inline bool isRightToLeft(const QStyleOption &option)
{
    return option.direction == Qt::RightToLeft;
}

} // namespace TARN
