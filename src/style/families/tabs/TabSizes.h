#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>
#include <QtWidgets/QTabBar>

namespace TARN {
class BaseStyle;
}

/// Tab bars and tab widgets: their sizes and rectangles. TabPainting.h paints them.
namespace TARN::Tabs {

/// The side of the page at which the tabs stand, whether they are rounded or triangular.
bool isSouth(QTabBar::Shape shape);
bool isWest(QTabBar::Shape shape);
bool isEast(QTabBar::Shape shape);
/// Tells whether the tabs stand one below the other.
bool isVertical(QTabBar::Shape shape);

/// Tells whether selected tabs are marked by their colour, not by bold text.
bool isCurrentTabHighlighted(const QWidget *tabBar);

QRect tabBarRect(const BaseStyle &style, const SubElementRequest &request);
QRect rightButtonRect(const BaseStyle &style, const SubElementRequest &request);
QRect textRect(const BaseStyle &style, const SubElementRequest &request);
QSize tabSize(const BaseStyle &style, const ContentsRequest &request);

void polishFont(BaseStyle &style, QWidget &widget);

} // namespace TARN::Tabs
