#pragma once

#include "style/asking/Requests.h"

namespace TARN {
class BaseStyle;
}

/// Tool bars.
namespace TARN::ToolBars {

/// \name The grips of everything that can be moved
/// \{
inline constexpr int gripStep = 3;
inline constexpr int lightGrip = 2;
inline constexpr int darkGrip = 1;
/// \}

bool drawHandle(const BaseStyle &style, const PaintRequest &request);
bool drawSeparator(const BaseStyle &style, const PaintRequest &request);
bool drawToolBar(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::ToolBars
