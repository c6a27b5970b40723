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

} // namespace TARN::TitleBars
