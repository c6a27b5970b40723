#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

class QWidget;

namespace TARN {
class BaseStyle;
}

/// Combo boxes.
namespace TARN::ComboBoxes {

QRect subControlRect(const BaseStyle &style, const SubControlRequest &request);
QSize comboBoxSize(const BaseStyle &style, const ContentsRequest &request);

/// Gives the combo box, if it has the toolkit's delegate, one that draws separators.
void polishDelegate(BaseStyle &style, QWidget &widget);

bool drawLabel(const BaseStyle &style, const PaintRequest &request);
bool drawComboBox(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::ComboBoxes
