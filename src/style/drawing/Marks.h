#pragma once

class QBrush;
class QPainter;
class QRect;

/// The marks of what is checked.
namespace TARN {

/// Draws the tick of a check box over \a rect.
void drawCheckMark(QPainter &painter, const QRect &rect, const QBrush &brush);

/// Draws the dot of a radio button in the middle of \a rect.
void drawRadioMark(QPainter &painter, const QRect &rect, const QBrush &brush);

} // namespace TARN
