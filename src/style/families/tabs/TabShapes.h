#pragma once

#include "style/asking/Requests.h"

/// The faces of tabs, their close buttons, and the frames of their pages.
namespace TARN::Tabs {

bool drawWidgetFrame(const PaintRequest &request);
bool drawBarBase(const PaintRequest &request);
bool drawCloseIndicator(const PaintRequest &request);
bool drawTabShape(const PaintRequest &request);
/// Draws the end of a bar that has more tabs than are seen: a line along which it was torn.
bool drawTear(const PaintRequest &request);

} // namespace TARN::Tabs
