#pragma once

#include "style/asking/Requests.h"

/// What stands beside the items of lists, trees and tables, or around them.
namespace TARN::ItemViews {

bool drawColumnArrow(const PaintRequest &request);
bool drawCompleteColumnArrow(const PaintRequest &request);
bool drawBranch(const PaintRequest &request);
bool drawDropPlace(const PaintRequest &request);
/// Marks what has the focus, unless it is selected.
bool drawFocusRect(const PaintRequest &request);
bool drawColumnGrip(const PaintRequest &request);

} // namespace TARN::ItemViews
