#pragma once

#include "style/Requests.h"

#include <QtCore/QRect>

class QWidget;

namespace TARN {
class BaseStyle;
}

/// Line edits and text edits.
namespace TARN::Inputs {

QSize lineEditSize(const BaseStyle &style, const ContentsRequest &request);

void polishClearButton(BaseStyle &style, QWidget &widget);

bool drawFrame(const BaseStyle &style, const PaintRequest &request);
bool drawLineEditFrame(const BaseStyle &style, const PaintRequest &request);
bool drawLineEditPanel(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::Inputs
