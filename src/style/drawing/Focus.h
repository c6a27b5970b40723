#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

namespace TARN {

/// Has the outermost style mark \a rect as focused; whether that is seen is the primitive's matter.
void drawFocusRect(const PaintRequest &request, const QRect &rect);

} // namespace TARN
