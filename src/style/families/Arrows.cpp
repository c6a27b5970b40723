#include "style/families/Arrows.h"

namespace TARN::Arrows {

bool drawDown(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawLeft(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawRight(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawUp(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

} // namespace TARN::Arrows
