#pragma once

#include "style/Requests.h"

namespace TARN {
class BaseStyle;
}

/// Tool bars.
namespace TARN::ToolBars {

bool drawHandle(const BaseStyle &style, const PaintRequest &request);
bool drawSeparator(const BaseStyle &style, const PaintRequest &request);
bool drawToolBar(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::ToolBars
