#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

namespace TARN {
class Polishing;
}

/// Sliders, among them range sliders.
namespace TARN::Sliders {

QRect subControlRect(const SubControlRequest &request);
QSize sliderSize(const ContentsRequest &request);

void polishRangeSlider(Polishing &polishing);

bool drawSlider(const PaintRequest &request);

} // namespace TARN::Sliders
