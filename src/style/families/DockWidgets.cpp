#include "style/families/DockWidgets.h"

namespace TARN::DockWidgets {

bool drawTitle(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

} // namespace TARN::DockWidgets
