#pragma once

class QWidget;

/// The application's components, which paint themselves with what they are handed as properties.
namespace TARN::Components {

void polishContainer(QWidget &widget);
void polishButtonGroup(QWidget &widget);
void polishRoundedPixmap(QWidget &widget);
void polishPill(QWidget &widget);
void polishPeriodicTable(QWidget &widget);

} // namespace TARN::Components
