#pragma once

class QFont;
class QWidget;

namespace TARN {

class BaseStyle;

/// Adapts \a widget to the theme: applies every rule that holds for it, in their order.
void polishWidget(BaseStyle &style, QWidget &widget);

/// Gives \a widget a theme's font. A stylesheet gives widgets that leave it the font back that it
/// knows; it is told of this one, or it would bring a former theme's back.
void setPolishedFont(QWidget &widget, const QFont &font);

/// Takes back what a widget must not keep when it leaves the style.
void unpolishWidget(QWidget &widget);

} // namespace TARN
