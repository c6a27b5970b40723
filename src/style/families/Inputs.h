#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>
#include <QtGui/QBrush>

class QWidget;

namespace TARN {
class BaseStyle;
}

/// Line edits and text edits, and what all inputs have in common.
namespace TARN::Inputs {

QSize lineEditSize(const BaseStyle &style, const ContentsRequest &request);

void polishClearButton(BaseStyle &style, QWidget &widget);

/// Returns the brush of the ground on which inputs show their text.
QBrush fieldBrush(bool enabled);

/// Tells whether the value of the input or the control is shown to be wrong.
bool isInError(const QWidget *widget);

/// Returns the brush of outlines that tell so.
QBrush errorBrush(bool enabled);

bool drawFrame(const BaseStyle &style, const PaintRequest &request);
bool drawLineEditFrame(const BaseStyle &style, const PaintRequest &request);
bool drawLineEditPanel(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::Inputs
