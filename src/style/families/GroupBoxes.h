#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

/// Group boxes.
namespace TARN::GroupBoxes {

QRect subControlRect(const SubControlRequest &request);
/// Places a title that is too long within the group box.
QRect boundedSubControlRect(const SubControlRequest &request);

bool drawFrame(const PaintRequest &request);
bool drawGroupBox(const PaintRequest &request);

} // namespace TARN::GroupBoxes
