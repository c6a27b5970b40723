#pragma once

#include "style/asking/Requests.h"

/// Status bars.
namespace TARN::StatusBars {

void polish(QWidget &widget);
bool drawPanel(const PaintRequest &request);

} // namespace TARN::StatusBars
