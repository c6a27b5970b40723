#pragma once

#include <QtCore/QFlags>
#include <QtCore/QString>
#include <QtCore/QVector>

namespace TARN::Gallery {

/// What an element is in while it is painted. None of them: it is at rest.
enum class ElementCondition {
    Hover = 0x001,
    Pressed = 0x002, ///< by the mouse
    KeyboardFocus = 0x004,
    ReadOnly = 0x008,
    Error = 0x010,
    Disabled = 0x020,
    Highlighted = 0x040, ///< the entry of a menu that a key or the mouse has reached
    Checked = 0x080,
    PartlyChecked = 0x100,
    Selected = 0x200,
};
Q_DECLARE_FLAGS(ElementState, ElementCondition)
Q_DECLARE_OPERATORS_FOR_FLAGS(ElementState)

using ElementStates = QVector<ElementState>;

/// Returns the part of \a state that tells what the element holds: whether it is checked or
/// selected.
ElementState valueOf(ElementState state);
/// Returns the part of \a state that tells what is done to the element, or what keeps it from
/// that.
ElementState interactionOf(ElementState state);

/// Returns \a state in words, say "Checked, hover".
QString stateName(ElementState state);

/// \name Sets of states
/// \{
/// Returns each of \a values together with each of \a interactions.
ElementStates combined(const ElementStates &interactions, const ElementStates &values);

const ElementStates &restingStates();   ///< at rest only
const ElementStates &passiveStates();   ///< what the mouse and the keyboard do not reach
const ElementStates &hoverableStates(); ///< what the keyboard does not reach
const ElementStates &buttonStates();    ///< what can be hovered, pressed and focused
const ElementStates &inputStates();     ///< what texts are typed into
const ElementStates &markableStates();  ///< what can be pressed, and can be in error
/// \}

} // namespace TARN::Gallery
