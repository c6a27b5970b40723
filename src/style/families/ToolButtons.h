#pragma once

#include "style/Requests.h"

namespace TARN {
class BaseStyle;
}

/// Tool buttons.
namespace TARN::ToolButtons {

bool drawLabel(const BaseStyle &style, const PaintRequest &request);
bool drawToolButton(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::ToolButtons
