#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

class QWidget;

/// Progress bars.
namespace TARN::ProgressBars {

QSize progressBarSize(const ContentsRequest &request);

void polish(QWidget &widget);

bool drawGroove(const PaintRequest &request);
bool drawContents(const PaintRequest &request);
bool drawLabel(const PaintRequest &request);

} // namespace TARN::ProgressBars
