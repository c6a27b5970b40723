#pragma once

#include "style/asking/Requests.h"

class QWidget;

namespace TARN {
class BaseStyle;
}

/// Windows and what surrounds their contents: docks, status bars, scroll areas.
namespace TARN::Windows {

void polishStatusBar(BaseStyle &style, QWidget &widget);
void polishScrollArea(BaseStyle &style, QWidget &widget);
void polishMainWindow(BaseStyle &style, QWidget &widget);
void polishDockWidget(BaseStyle &style, QWidget &widget);

/// Has the style hear Alt in a window, be it one now or, as a dock, at times.
void polishWindow(BaseStyle &style, QWidget &widget);

bool drawFrame(const BaseStyle &style, const PaintRequest &request);
bool drawBackground(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::Windows
