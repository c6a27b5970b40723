#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

class QWidget;

namespace TARN {
class BaseStyle;
}

/// Sliders, among them range sliders.
namespace TARN::Sliders {

QRect subControlRect(const BaseStyle &style, const SubControlRequest &request);
QSize sliderSize(const BaseStyle &style, const ContentsRequest &request);

void polishRangeSlider(BaseStyle &style, QWidget &widget);

bool drawSlider(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::Sliders
