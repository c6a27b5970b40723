#pragma once

#include "style/asking/Requests.h"

namespace TARN {
class Polishing;
}

/// Cards and their parts, which tell what they are by properties.
namespace TARN::Cards {

void polishPart(Polishing &polishing);
void polishTitle(Polishing &polishing);
void polishSubtitle(Polishing &polishing);
void polishCard(Polishing &polishing);

/// Paints the ground of a header, contents or footer; anything else is none of a card's parts.
bool drawPart(const PaintRequest &request);

} // namespace TARN::Cards
