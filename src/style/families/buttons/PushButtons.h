#pragma once

#include "style/asking/Requests.h"

namespace TARN {
class Polishing;
}

/// Push buttons and command links.
namespace TARN::Buttons {

QSize pushButtonSize(const ContentsRequest &request);

/// Returns the height of a push button that has the common fields of the option of \a request:
/// inputs are as high as a button with the same text.
int pushButtonHeight(const ContentsRequest &request);

void polishCommandLink(Polishing &polishing);

bool drawPushButton(const PaintRequest &request);
bool drawBevel(const PaintRequest &request);
bool drawLabel(const PaintRequest &request);

} // namespace TARN::Buttons
