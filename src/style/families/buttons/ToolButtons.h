#pragma once

#include "style/asking/Requests.h"

class QStyleOptionToolButton;

/// Tool buttons.
namespace TARN::ToolButtons {

QSize toolButtonSize(const ContentsRequest &request);

/// Draws the arrow of a tool button by \a style in \a rect. Sets the foreground brush in the
/// palette of \a option and tints its icon, so that the label that is painted next from it matches
/// the arrow.
void drawArrow(const QStyle &style, const QStyleOptionToolButton &option, const QRect &rect,
               QPainter &painter, const QWidget *widget);

bool drawToolButton(const PaintRequest &request);
/// Draws the face of a tool button or of one of its parts.
bool drawPanel(const PaintRequest &request);
bool drawLabel(const PaintRequest &request);

} // namespace TARN::ToolButtons
