#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

namespace TARN {
class BaseStyle;
}

/// Group boxes.
namespace TARN::GroupBoxes {

QRect subControlRect(const BaseStyle &style, const SubControlRequest &request);

bool drawFrame(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::GroupBoxes
