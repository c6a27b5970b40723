#pragma once

#include "style/asking/Requests.h"

namespace TARN {
class Polishing;
}

/// Tool boxes.
namespace TARN::ToolBoxes {

void polishButton(Polishing &polishing);
void polishToolBox(Polishing &polishing);

bool drawTabShape(const PaintRequest &request);

} // namespace TARN::ToolBoxes
