#pragma once

#include "style/asking/Requests.h"

namespace TARN {
class Polishing;
}

/// Status bars.
namespace TARN::StatusBars {

void polish(Polishing &polishing);
bool drawPanel(const PaintRequest &request);

} // namespace TARN::StatusBars
