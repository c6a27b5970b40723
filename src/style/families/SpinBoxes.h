#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

namespace TARN {
class BaseStyle;
}

/// Spin boxes.
namespace TARN::SpinBoxes {

QRect subControlRect(const BaseStyle &style, const SubControlRequest &request);

bool drawMinus(const BaseStyle &style, const PaintRequest &request);
bool drawPlus(const BaseStyle &style, const PaintRequest &request);
bool drawSpinBox(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::SpinBoxes
