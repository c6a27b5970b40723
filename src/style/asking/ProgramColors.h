#pragma once

#include "catalogue/WidgetColors.h"
#include "style/asking/Requests.h"

#include <memory>

namespace TARN {

/// Returns the colours of what \a request is for, if its palette differs from \a own, the style's;
/// null if it does not.
std::shared_ptr<const WidgetColors> programColors(const PaintRequest &request, const QPalette &own);

} // namespace TARN
