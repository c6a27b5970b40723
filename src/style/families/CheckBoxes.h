#pragma once

#include "style/Requests.h"

#include <QtCore/QRect>

namespace TARN {
class BaseStyle;
}

/// Check boxes, switches and radio buttons.
namespace TARN::CheckBoxes {

QRect indicatorRect(const BaseStyle &style, const SubElementRequest &request);
QRect contentsRect(const BaseStyle &style, const SubElementRequest &request);

} // namespace TARN::CheckBoxes
