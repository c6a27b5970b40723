#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

/// Spin boxes.
namespace TARN::SpinBoxes {

QRect subControlRect(const SubControlRequest &request);
/// Returns the room for the text, the buttons and the frame.
QSize spinBoxSize(const ContentsRequest &request);

bool drawMinus(const PaintRequest &request);
bool drawPlus(const PaintRequest &request);
/// \name The arrows of the buttons, in the colour of the palette's button text
/// \{
bool drawUp(const PaintRequest &request);
bool drawDown(const PaintRequest &request);
/// \}
/// Draws a spin box whose arrows are the base style's.
bool drawSpinBox(const PaintRequest &request);
/// Draws a spin box whose arrows are ours.
bool drawSpinBoxWithOwnArrows(const PaintRequest &request);

} // namespace TARN::SpinBoxes
