#pragma once

#include "style/asking/Requests.h"

/// The texts and icons of tabs.
namespace TARN::Tabs {

bool drawTabLabel(const PaintRequest &request);

} // namespace TARN::Tabs
