#pragma once

class QWidget;

/// Labels.
namespace TARN::Labels {

void polishDisabledText(QWidget &widget);

} // namespace TARN::Labels
