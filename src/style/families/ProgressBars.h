#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

namespace TARN {
class Polishing;
}

/// Progress bars.
namespace TARN::ProgressBars {

QSize progressBarSize(const ContentsRequest &request);

void polish(Polishing &polishing);

bool drawGroove(const PaintRequest &request);
bool drawContents(const PaintRequest &request);
bool drawLabel(const PaintRequest &request);

} // namespace TARN::ProgressBars
