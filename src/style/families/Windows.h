#pragma once

#include "style/asking/Requests.h"

namespace TARN {
class Polishing;
}

/// Windows, and the scroll areas that surround their contents.
namespace TARN::Windows {

void polishScrollArea(Polishing &polishing);
void polishMainWindow(Polishing &polishing);

/// Has the style hear Alt in a window, be it one now or, as a dock, at times.
void polishWindow(Polishing &polishing);

bool drawFrame(const PaintRequest &request);
bool drawBackground(const PaintRequest &request);
bool drawSizeGrip(const PaintRequest &request);

} // namespace TARN::Windows
