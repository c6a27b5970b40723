#pragma once

#include "style/asking/Requests.h"

namespace TARN {
class Polishing;
}

/// Tool boxes.
namespace TARN::ToolBoxes {

void polishButton(Polishing &polishing);
void polishToolBox(Polishing &polishing);

/// Returns the room of the icon and the text, which is the whole tab.
QRect contentsRect(const SubElementRequest &request);

/// Draws a tab that looks the same in all of its states.
bool drawTabShape(const PaintRequest &request);
/// Draws a tab that shows which page is open, and what the mouse does.
bool drawLivelyTabShape(const PaintRequest &request);
/// Draws the icon and the text of such a tab, and the focus.
bool drawTabLabel(const PaintRequest &request);

} // namespace TARN::ToolBoxes
