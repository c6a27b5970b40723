#include "style/families/TipsAndStatus.h"

namespace TARN::TipsAndStatus {

bool drawTip(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawStatusBar(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

} // namespace TARN::TipsAndStatus
