#pragma once

class QWidget;

namespace TARN {

class BaseStyle;

/// Tells whether \a widget, which is seen, underlines its keyboard shortcuts: a menu bar while
/// Alt is held, anything else from the first Alt in its window on.
bool areMnemonicsUnderlined(const BaseStyle &style, const QWidget &widget);

/// Has everything in \a window painted again that may underline shortcuts.
void updateMnemonics(const QWidget &window);

/// Has the menu bars in \a window painted again.
void updateMenuBars(const QWidget &window);

} // namespace TARN
