#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>
#include <QtGui/QBrush>

namespace TARN {
class Polishing;
}

/// Line edits and text edits.
namespace TARN::Inputs {

QSize lineEditSize(const ContentsRequest &request);
/// The same; without a frame of its own, as in a spin box, only as large as its contents.
QSize lineEditSizeInside(const ContentsRequest &request);

void polishClearButton(Polishing &polishing);

bool drawFrame(const PaintRequest &request);
bool drawLineEditFrame(const PaintRequest &request);
bool drawLineEditPanel(const PaintRequest &request);

} // namespace TARN::Inputs
