#pragma once

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

} // namespace TARN::Cards
