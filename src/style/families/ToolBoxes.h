#pragma once

#include "style/asking/Requests.h"

class QWidget;

namespace TARN {
class BaseStyle;
}

/// Tool boxes.
namespace TARN::ToolBoxes {

void polishButton(BaseStyle &style, QWidget &widget);
void polishToolBox(BaseStyle &style, QWidget &widget);

bool drawTabShape(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::ToolBoxes
