#pragma once

#include "style/asking/Requests.h"

namespace TARN {
class BaseStyle;
}

/// Frames without a widget family of their own.
namespace TARN::Frames {

bool drawFocusRect(const BaseStyle &style, const PaintRequest &request);
bool drawRubberBand(const BaseStyle &style, const PaintRequest &request);
bool drawShapedFrame(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::Frames
