#pragma once

#include "style/asking/Requests.h"

namespace TARN {
class BaseStyle;
}

/// Splitters.
namespace TARN::Splitters {

bool drawHandle(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::Splitters
