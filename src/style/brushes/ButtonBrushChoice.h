#pragma once

#include "style/brushes/ButtonBrushes.h"

class QStyleOption;
class QWidget;

namespace TARN {

/// Returns the brushes of the button, or of the button-like part of the input, that \a option
/// describes; none without an option. The names of the brushes are composed from the state of
/// \a option and the dynamic properties of \a widget, which may be null.
ButtonBrushes buttonBrushes(const QStyleOption *option, const QWidget *widget);

} // namespace TARN
