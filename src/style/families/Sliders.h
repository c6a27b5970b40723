#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

class QWidget;

/// Sliders, among them range sliders.
namespace TARN::Sliders {

QRect subControlRect(const SubControlRequest &request);
QSize sliderSize(const ContentsRequest &request);

void polishRangeSlider(QWidget &widget);

bool drawSlider(const PaintRequest &request);

} // namespace TARN::Sliders
