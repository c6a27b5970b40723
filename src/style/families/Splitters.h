#pragma once

#include "style/asking/Requests.h"

/// Splitters.
namespace TARN::Splitters {

bool drawHandle(const PaintRequest &request);

} // namespace TARN::Splitters
