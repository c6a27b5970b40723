#pragma once

#include "style/asking/Requests.h"

class QWidget;

/// Windows, and the scroll areas that surround their contents.
namespace TARN::Windows {

void polishScrollArea(QWidget &widget);
void polishMainWindow(QWidget &widget);

/// Has the style hear Alt in a window, be it one now or, as a dock, at times.
void polishWindow(QStyle &style, QWidget &widget);

bool drawFrame(const PaintRequest &request);
bool drawBackground(const PaintRequest &request);

} // namespace TARN::Windows
