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
bool drawSpinBox(const PaintRequest &request);

} // namespace TARN::SpinBoxes
