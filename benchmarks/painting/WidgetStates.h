#pragma once

class QWidget;

/// A state that a shown widget is brought into, by what a person would do with it as far as that
/// goes without an event loop.
struct WidgetState
{
    const char *name;
    void (*enter)(QWidget &widget);
};

namespace States {

extern const WidgetState rest;
/// With the mouse over its middle, and over the item, tab or section that lies there.
extern const WidgetState hover;
/// With the mouse over the first entry; for menus.
extern const WidgetState entryHover;
/// With the mouse button held down over its middle.
extern const WidgetState pressed;
/// With the mouse button held down over the upper button; for spin boxes.
extern const WidgetState stepPressed;
extern const WidgetState checked;
extern const WidgetState partlyChecked;
/// With the focus that the keyboard gives.
extern const WidgetState focus;
/// With all items selected.
extern const WidgetState selected;
extern const WidgetState readOnly;
extern const WidgetState disabled;

} // namespace States
