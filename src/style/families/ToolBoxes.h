#pragma once

#include "style/asking/Requests.h"

class QWidget;

/// Tool boxes.
namespace TARN::ToolBoxes {

void polishButton(QWidget &widget);
void polishToolBox(QWidget &widget);

bool drawTabShape(const PaintRequest &request);

} // namespace TARN::ToolBoxes
