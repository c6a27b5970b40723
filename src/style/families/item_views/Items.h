#pragma once

#include "style/asking/Requests.h"

/// The items of lists, trees and tables.
namespace TARN::ItemViews {

bool drawItem(const PaintRequest &request);
bool drawCompleteItem(const PaintRequest &request);

} // namespace TARN::ItemViews
