#pragma once

#include "style/Requests.h"

#include <QtCore/QRect>

class QWidget;

namespace TARN {
class BaseStyle;
}

/// Progress bars.
namespace TARN::ProgressBars {

QSize progressBarSize(const BaseStyle &style, const ContentsRequest &request);

void polish(BaseStyle &style, QWidget &widget);

} // namespace TARN::ProgressBars
