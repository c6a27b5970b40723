#pragma once

#include "style/asking/Requests.h"

/// Dock widgets.
namespace TARN::DockWidgets {

void polish(QWidget &widget);
/// Paints the ground of a dock; anything else is none.
bool drawBackground(const PaintRequest &request);
bool drawTitle(const PaintRequest &request);

} // namespace TARN::DockWidgets
