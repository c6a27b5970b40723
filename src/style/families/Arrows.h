#pragma once

#include "style/asking/Requests.h"

namespace TARN {
class BaseStyle;
}

/// Arrows: chevrons that point to what opens.
namespace TARN::Arrows {

bool drawDown(const BaseStyle &style, const PaintRequest &request);
bool drawLeft(const BaseStyle &style, const PaintRequest &request);
bool drawRight(const BaseStyle &style, const PaintRequest &request);
bool drawUp(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::Arrows
