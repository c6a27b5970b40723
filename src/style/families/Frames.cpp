#include "style/families/Frames.h"

namespace TARN::Frames {

bool drawFocusRect(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawRubberBand(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawShapedFrame(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

} // namespace TARN::Frames
