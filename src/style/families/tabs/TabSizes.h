#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

class QWidget;

/// The sizes, rectangles and fonts of tabs.
namespace TARN::Tabs {

QRect tabBarRect(const SubElementRequest &request);
QRect rightButtonRect(const SubElementRequest &request);
QRect textRect(const SubElementRequest &request);
QSize tabSize(const ContentsRequest &request);
void polishFont(QWidget &widget);

} // namespace TARN::Tabs
