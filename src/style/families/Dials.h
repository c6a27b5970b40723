#pragma once

#include "style/asking/Requests.h"

/// Dials: sliders that are bent into a circle.
namespace TARN::Dials {

bool drawDial(const PaintRequest &request);

} // namespace TARN::Dials
