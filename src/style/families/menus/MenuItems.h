#pragma once

#include "style/asking/Requests.h"

/// The entries of menus.
namespace TARN::Menus {

bool drawItem(const PaintRequest &request);

} // namespace TARN::Menus
