#pragma once

#include "style/asking/Requests.h"

namespace TARN {
class Polishing;
}

/// Status bars.
namespace TARN::StatusBars {

/// Gives the bar its height.
void polish(Polishing &polishing);
/// Gives the bar its height again when its layout is done.
void polishLater(Polishing &polishing);
bool drawPanel(const PaintRequest &request);
/// What stands on a status bar has no frame: the distance tells one from the other.
bool drawItemFrame(const PaintRequest &request);

} // namespace TARN::StatusBars
