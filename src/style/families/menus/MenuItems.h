#pragma once

#include "style/asking/Requests.h"

namespace TARN {
class BaseStyle;
}

/// Menus and menu bars.
namespace TARN::Menus {

bool drawPanel(const BaseStyle &style, const PaintRequest &request);
bool drawItem(const BaseStyle &style, const PaintRequest &request);
bool drawBarItem(const BaseStyle &style, const PaintRequest &request);
bool drawBarEmptyArea(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::Menus
