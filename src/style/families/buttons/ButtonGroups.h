#pragma once

#include "style/brushes/ButtonBrushes.h"

class QPainter;
class QRectF;
class QStyle;
class QStyleOption;
class QWidget;

/// Groups of buttons: their outer corners are round, or they are the linked steps of a workflow.
namespace TARN::Buttons {

/// Draws the face of a button that is part of a group with the pen and the brush of \a painter, so
/// that only the outer corners of the group have the \a radius; in a workflow as a pill, linked to
/// its neighbours by dots in the border brush of \a brushes. Measures are those of \a proxy.
void drawInGroup(const QStyle &proxy, const QRectF &rect, QPainter &painter,
                 const QStyleOption *option, int radius, const ButtonBrushes &brushes,
                 const QWidget *widget);

} // namespace TARN::Buttons
