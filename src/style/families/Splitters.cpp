#include "style/families/Splitters.h"

namespace TARN::Splitters {

bool drawHandle(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

} // namespace TARN::Splitters
