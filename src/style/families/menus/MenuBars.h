#pragma once

#include "style/asking/Requests.h"

/// Menu bars.
namespace TARN::Menus {

bool drawBarItem(const PaintRequest &request);
bool drawBarEmptyArea(const PaintRequest &request);

} // namespace TARN::Menus
