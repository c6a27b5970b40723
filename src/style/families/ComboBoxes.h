#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

namespace TARN {
class Polishing;
}

/// Combo boxes.
namespace TARN::ComboBoxes {

QRect subControlRect(const SubControlRequest &request);
/// The same, for combo boxes whose list is polished by itself.
QRect subControlRectWithList(const SubControlRequest &request);
QSize comboBoxSize(const ContentsRequest &request);

/// Gives the combo box, if it has the toolkit's delegate, one that draws separators.
void polishDelegate(Polishing &polishing);

/// Gives the combo boxes that use a delegate of \a style, which ends, one of their own.
void replaceDelegates(const QStyle &style);

bool drawLabel(const PaintRequest &request);
bool drawComboBox(const PaintRequest &request);

} // namespace TARN::ComboBoxes
