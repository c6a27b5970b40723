#pragma once

#include "style/asking/Mode.h"

class QStyle;
class QWidget;

namespace TARN {

class PolishedWidgets;

/// Adapts \a widget to the theme: applies every rule of \a style that holds for it, in their order.
/// In the complete mode \a polished learns how to take it back.
void polishWidget(QStyle &style, QWidget &widget, Mode mode, PolishedWidgets &polished);

/// Polishes the widgets in \a polished again: a program may have chosen in the meantime what they
/// were given.
void repolishWidgets(QStyle &style, Mode mode, PolishedWidgets &polished);

/// Takes back what \a widget must not keep when it leaves the style by default; in the complete
/// mode, all that it was given.
void unpolishWidget(QWidget &widget, Mode mode, PolishedWidgets &polished);

} // namespace TARN
