#pragma once

#include <QtWidgets/QTabBar>

/// Where tabs stand, and what is told of them by properties.
namespace TARN::Tabs {

/// The side of the page at which the tabs stand, whether they are rounded or triangular.
bool isSouth(QTabBar::Shape shape);
bool isWest(QTabBar::Shape shape);
bool isEast(QTabBar::Shape shape);

/// Tells whether the tabs stand one below the other.
bool isVertical(QTabBar::Shape shape);

/// Tells whether selected tabs are marked by their colour, not by bold text.
bool isCurrentTabHighlighted(const QWidget *tabBar);

} // namespace TARN::Tabs
