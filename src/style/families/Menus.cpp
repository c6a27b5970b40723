#include "style/families/Menus.h"

namespace TARN::Menus {

bool drawPanel(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawItem(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawBarItem(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawBarEmptyArea(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

} // namespace TARN::Menus
