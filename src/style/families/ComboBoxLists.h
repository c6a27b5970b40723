#pragma once

#include "style/asking/Requests.h"

class QComboBox;

namespace TARN {
class Polishing;
}

/// The lists that combo boxes open.
namespace TARN::ComboBoxes {

/// Gives the list, if it has the toolkit's delegate, one that draws separators.
void polishList(Polishing &polishing);

/// Draws the frame around a list, and as Inputs::drawFrame() all others.
bool drawListFrame(const PaintRequest &request);

/// Has the list of \a comboBox be what it will be when it is seen.
void polishListOf(const QComboBox &comboBox);

} // namespace TARN::ComboBoxes
