#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

namespace TARN {
class BaseStyle;
}

/// Check boxes, switches and radio buttons.
namespace TARN::CheckBoxes {

QRect indicatorRect(const BaseStyle &style, const SubElementRequest &request);
QRect contentsRect(const BaseStyle &style, const SubElementRequest &request);

bool drawCheckIndicator(const BaseStyle &style, const PaintRequest &request);
bool drawRadioIndicator(const BaseStyle &style, const PaintRequest &request);
bool drawCheckBox(const BaseStyle &style, const PaintRequest &request);
bool drawLabel(const BaseStyle &style, const PaintRequest &request);
bool drawRadioButton(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::CheckBoxes
