#include "style/families/TitleBars.h"

namespace TARN::TitleBars {

bool drawTitleBar(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

} // namespace TARN::TitleBars
