#include "style/families/ToolButtons.h"

namespace TARN::ToolButtons {

bool drawLabel(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawToolButton(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

} // namespace TARN::ToolButtons
