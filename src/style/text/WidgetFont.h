#pragma once

class QFont;
class QWidget;

namespace TARN {

/// Gives \a widget a theme's font. A stylesheet gives widgets that leave it the font back that it
/// knows; it is told of this one, or it would bring a former theme's back.
void setPolishedFont(QWidget &widget, const QFont &font);

} // namespace TARN
