#pragma once

#include "style/asking/Requests.h"

/// The faces of everything that is a button.
namespace TARN::Buttons {

bool drawDefaultFrame(const PaintRequest &request);
/// Draws the line around a face without the face.
bool drawFrame(const PaintRequest &request);
bool drawPanel(const PaintRequest &request);

} // namespace TARN::Buttons
