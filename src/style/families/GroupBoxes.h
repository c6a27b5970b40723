#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

/// Group boxes.
namespace TARN::GroupBoxes {

QRect subControlRect(const SubControlRequest &request);

bool drawFrame(const PaintRequest &request);

} // namespace TARN::GroupBoxes
