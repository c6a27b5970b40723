#pragma once

#include "style/asking/Requests.h"

class QWidget;

/// Cards and their parts, which tell what they are by properties.
namespace TARN::Cards {

void polishPart(QWidget &widget);
void polishTitle(QWidget &widget);
void polishSubtitle(QWidget &widget);
void polishCard(QWidget &widget);

/// Paints the ground of a header, contents or footer; anything else is none of a card's parts.
bool drawPart(const PaintRequest &request);

} // namespace TARN::Cards
