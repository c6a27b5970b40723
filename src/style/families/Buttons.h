#pragma once

#include "style/Requests.h"

#include <QtCore/QRect>

class QWidget;

namespace TARN {
class BaseStyle;
}

/// Push buttons, tool buttons and command links.
namespace TARN::Buttons {

QSize pushButtonSize(const BaseStyle &style, const ContentsRequest &request);
QSize toolButtonSize(const BaseStyle &style, const ContentsRequest &request);

/// Returns the height of a push button that has the common fields of the option of \a request:
/// inputs are as high as a button with the same text.
int pushButtonHeight(const BaseStyle &style, const ContentsRequest &request);

void polishCommandLink(BaseStyle &style, QWidget &widget);

bool drawDefaultFrame(const BaseStyle &style, const PaintRequest &request);
bool drawPanel(const BaseStyle &style, const PaintRequest &request);
bool drawPushButton(const BaseStyle &style, const PaintRequest &request);
bool drawBevel(const BaseStyle &style, const PaintRequest &request);
bool drawLabel(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::Buttons
