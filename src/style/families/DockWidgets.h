#pragma once

#include "style/asking/Requests.h"

namespace TARN {
class Polishing;
}

/// Dock widgets.
namespace TARN::DockWidgets {

void polish(Polishing &polishing);
/// Paints the ground of a dock; anything else is none.
bool drawBackground(const PaintRequest &request);
bool drawTitle(const PaintRequest &request);
/// Draws what two docks, or a dock and the contents of the window, are told apart by.
bool drawResizeHandle(const PaintRequest &request);

} // namespace TARN::DockWidgets
