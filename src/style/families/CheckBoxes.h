#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

/// Check boxes, switches and radio buttons.
namespace TARN::CheckBoxes {

QRect indicatorRect(const SubElementRequest &request);
QRect contentsRect(const SubElementRequest &request);

bool drawCheckIndicator(const PaintRequest &request);
bool drawRadioIndicator(const PaintRequest &request);
bool drawCheckBox(const PaintRequest &request);
bool drawLabel(const PaintRequest &request);
bool drawRadioButton(const PaintRequest &request);

} // namespace TARN::CheckBoxes
