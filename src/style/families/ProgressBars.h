#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

class QWidget;

namespace TARN {
class BaseStyle;
}

/// Progress bars.
namespace TARN::ProgressBars {

QSize progressBarSize(const BaseStyle &style, const ContentsRequest &request);

void polish(BaseStyle &style, QWidget &widget);

bool drawGroove(const BaseStyle &style, const PaintRequest &request);
bool drawContents(const BaseStyle &style, const PaintRequest &request);
bool drawLabel(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::ProgressBars
