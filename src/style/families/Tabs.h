#pragma once

#include "style/Requests.h"

#include <QtCore/QRect>

class QWidget;

namespace TARN {
class BaseStyle;
}

/// Tab bars and tab widgets.
namespace TARN::Tabs {

QRect tabBarRect(const BaseStyle &style, const SubElementRequest &request);
QRect rightButtonRect(const BaseStyle &style, const SubElementRequest &request);
QRect textRect(const BaseStyle &style, const SubElementRequest &request);
QSize tabSize(const BaseStyle &style, const ContentsRequest &request);

void polishFont(BaseStyle &style, QWidget &widget);

bool drawWidgetFrame(const BaseStyle &style, const PaintRequest &request);
bool drawBarBase(const BaseStyle &style, const PaintRequest &request);
bool drawCloseIndicator(const BaseStyle &style, const PaintRequest &request);
bool drawTabShape(const BaseStyle &style, const PaintRequest &request);
bool drawTabLabel(const BaseStyle &style, const PaintRequest &request);

} // namespace TARN::Tabs
