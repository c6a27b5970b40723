#pragma once

#include "style/asking/Requests.h"

class QStyleOptionTitleBar;

/// Title bars of sub-windows.
namespace TARN::TitleBars {

/// Draws one button of a title bar in the rectangle of \a subControl, with the standard icon
/// \a standardPixmap. A button that is not among the active sub-controls looks disabled.
void drawButton(const PaintRequest &request, const QStyleOptionTitleBar &option,
                QStyle::SubControl subControl, QStyle::StandardPixmap standardPixmap);

bool drawTitleBar(const PaintRequest &request);
/// Draws a title bar whose buttons have icons in the colours of their states, be they the theme's.
bool drawTintedTitleBar(const PaintRequest &request);
/// Draws the buttons that a maximised sub-window has on the menu bar.
bool drawMdiControls(const PaintRequest &request);

} // namespace TARN::TitleBars
