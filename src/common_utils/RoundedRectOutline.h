#pragma once

#include "common_utils/Helpers.h"

class QPainter;

namespace TARN {

/// Fills and strokes a rounded rectangle along its outline.
void drawOutline(const QRectF &rect, qreal radius, Helpers::StraightCornerFlags straightCorners,
                 QPainter &painter);

} // namespace TARN
