#pragma once

class QStyle;
class QWidget;

namespace TARN {

/// Adapts \a widget to the theme: applies every rule of \a style that holds for it, in
/// their order.
void polishWidget(QStyle &style, QWidget &widget);

/// Takes back what a widget must not keep when it leaves the style.
void unpolishWidget(QWidget &widget);

} // namespace TARN
