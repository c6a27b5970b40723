#pragma once

#include "style/asking/Requests.h"

/// Frames without a widget family of their own.
namespace TARN::Frames {

bool drawFocusRect(const PaintRequest &request);
/// Draws the frame that a program lays around the widget with the focus.
bool drawFocusFrame(const PaintRequest &request);
bool drawRubberBand(const PaintRequest &request);
bool drawShapedFrame(const PaintRequest &request);

} // namespace TARN::Frames
