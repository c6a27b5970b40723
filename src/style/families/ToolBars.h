#pragma once

#include "style/asking/Requests.h"

/// Tool bars.
namespace TARN::ToolBars {

bool drawHandle(const PaintRequest &request);
bool drawSeparator(const PaintRequest &request);
bool drawToolBar(const PaintRequest &request);
bool drawPanel(const PaintRequest &request);

} // namespace TARN::ToolBars
