#pragma once

#include "style/asking/Requests.h"

/// Arrows: chevrons that point to what opens.
namespace TARN::Arrows {

bool drawDown(const PaintRequest &request);
bool drawLeft(const PaintRequest &request);
bool drawRight(const PaintRequest &request);
bool drawUp(const PaintRequest &request);

} // namespace TARN::Arrows
