#pragma once

class QWidget;

namespace TARN {
class BaseStyle;
}

/// Labels.
namespace TARN::Labels {

void polishDisabledText(BaseStyle &style, QWidget &widget);

} // namespace TARN::Labels
