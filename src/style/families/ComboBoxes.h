#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

class QWidget;

/// Combo boxes.
namespace TARN::ComboBoxes {

QRect subControlRect(const SubControlRequest &request);
QSize comboBoxSize(const ContentsRequest &request);

/// Gives the combo box, if it has the toolkit's delegate, one that draws separators.
void polishDelegate(QStyle &style, QWidget &widget);

/// Gives the combo boxes that use a delegate of \a style, which ends, one of their own.
void replaceDelegates(const QStyle &style);

bool drawLabel(const PaintRequest &request);
bool drawComboBox(const PaintRequest &request);

} // namespace TARN::ComboBoxes
