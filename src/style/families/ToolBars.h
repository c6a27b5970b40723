#pragma once

#include "style/asking/Requests.h"

/// Tool bars.
namespace TARN::ToolBars {

bool drawHandle(const PaintRequest &request);
bool drawSeparator(const PaintRequest &request);
bool drawToolBar(const PaintRequest &request);

} // namespace TARN::ToolBars
