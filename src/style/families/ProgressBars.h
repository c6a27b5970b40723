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

/// Draws a piece of what a bar has done, rounded as the bar is.
bool drawChunk(const PaintRequest &request);
bool drawGroove(const PaintRequest &request);
bool drawContents(const PaintRequest &request);
bool drawLabel(const PaintRequest &request);

} // namespace TARN::ProgressBars
