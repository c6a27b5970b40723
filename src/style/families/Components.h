#pragma once

class QWidget;

namespace TARN {
class BaseStyle;
}

/// The application's components, which paint themselves with what they are handed as properties.
namespace TARN::Components {

void polishContainer(BaseStyle &style, QWidget &widget);
void polishButtonGroup(BaseStyle &style, QWidget &widget);
void polishRoundedPixmap(BaseStyle &style, QWidget &widget);
void polishPill(BaseStyle &style, QWidget &widget);
void polishPeriodicTable(BaseStyle &style, QWidget &widget);

} // namespace TARN::Components
