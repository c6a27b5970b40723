#pragma once

#include "style/asking/Requests.h"

/// What a menu has beside its entries.
namespace TARN::Menus {

/// Draws what scrolls a menu that is higher than the screen.
bool drawScroller(const PaintRequest &request);
/// Draws the line along which a menu can be torn off.
bool drawTearOff(const PaintRequest &request);
/// Draws a part of a menu in which there is nothing.
bool drawEmptyArea(const PaintRequest &request);
/// Draws the mark of an entry that is checked.
bool drawCheckMark(const PaintRequest &request);

} // namespace TARN::Menus
