#pragma once

#include "style/asking/Requests.h"

namespace TARN {
class BaseStyle;
}

/// Tool tips and status bars.
namespace TARN::TipsAndStatus {

bool drawTip(const BaseStyle &style, const PaintRequest &request);
bool drawStatusBar(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::TipsAndStatus
