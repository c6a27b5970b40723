#pragma once

#include "style/asking/Requests.h"

/// Tool tips.
namespace TARN::ToolTips {

bool drawTip(const PaintRequest &request);

} // namespace TARN::ToolTips
