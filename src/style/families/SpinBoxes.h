#pragma once

#include "style/Requests.h"

#include <QtCore/QRect>

namespace TARN {
class BaseStyle;
}

/// Spin boxes.
namespace TARN::SpinBoxes {

QRect subControlRect(const BaseStyle &style, const SubControlRequest &request);

} // namespace TARN::SpinBoxes
