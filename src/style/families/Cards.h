#pragma once

#include "style/asking/Requests.h"

class QWidget;

namespace TARN {
class BaseStyle;
}

/// Cards and their parts, which tell what they are by properties.
namespace TARN::Cards {

void polishPart(BaseStyle &style, QWidget &widget);
void polishTitle(BaseStyle &style, QWidget &widget);
void polishSubtitle(BaseStyle &style, QWidget &widget);
void polishCard(BaseStyle &style, QWidget &widget);

/// Paints the ground of a header, contents or footer; anything else is none of a card's parts.
bool drawPart(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::Cards
