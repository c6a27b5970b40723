#include "style/families/ToolBoxes.h"

#include <QtWidgets/QLayout>
#include <QtWidgets/QWidget>

namespace TARN::ToolBoxes {

namespace {

constexpr int leastButtonHeight = 42;

} // namespace

void polishButton(BaseStyle & /*style*/, QWidget &widget)
{
    widget.setMinimumHeight(leastButtonHeight);
}

void polishToolBox(BaseStyle & /*style*/, QWidget &widget)
{
    if (QLayout *layout = widget.layout()) {
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
    }
}

bool drawTabShape(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

} // namespace TARN::ToolBoxes
