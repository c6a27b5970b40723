#pragma once

class QWidget;

namespace TARN {
class BaseStyle;
}

/// Tool boxes.
namespace TARN::ToolBoxes {

void polishButton(BaseStyle &style, QWidget &widget);
void polishToolBox(BaseStyle &style, QWidget &widget);

} // namespace TARN::ToolBoxes
