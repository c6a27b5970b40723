#pragma once

#include "style/asking/Requests.h"

namespace TARN {
class BaseStyle;
}

/// Dock widgets.
namespace TARN::DockWidgets {

bool drawTitle(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::DockWidgets
