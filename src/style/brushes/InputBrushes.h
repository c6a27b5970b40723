#pragma once

#include <QtGui/QBrush>

class QWidget;

/// What all inputs have in common.
namespace TARN {

/// Returns the brush of the ground on which inputs show their text.
QBrush fieldBrush(bool enabled);

/// Tells whether the value of the input or the control is shown to be wrong.
bool isInError(const QWidget *widget);

/// Returns the brush of outlines that tell so.
QBrush errorBrush(bool enabled);

} // namespace TARN
