#pragma once

class QStyleOption;
class QStyleOptionTab;

/// What the grounds of buttons and tabs are told apart by.
namespace TARN {

enum class ButtonBackground {
    AtRest,
    Checked, ///< or pressed
    Hovered
};

/// Classifies the face of the button that \a option describes.
ButtonBackground buttonBackground(const QStyleOption &option);

enum class TabBackground {
    Selected,
    AtRest, ///< or disabled
    Hovered ///< or focused by keyboard
};

/// Classifies the tab that \a option describes.
TabBackground tabBackground(const QStyleOptionTab &option);

} // namespace TARN
