#pragma once

#include "style/asking/Requests.h"

namespace TARN {
class BaseStyle;
}

/// Title bars of sub-windows.
namespace TARN::TitleBars {

bool drawTitleBar(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::TitleBars
