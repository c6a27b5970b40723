#include "style/families/tabs/TabSides.h"

#include "style/asking/Properties.h"

#include <QtWidgets/QApplication>

namespace TARN::Tabs {

bool isSouth(QTabBar::Shape shape)
{
    return shape == QTabBar::RoundedSouth || shape == QTabBar::TriangularSouth;
}

bool isWest(QTabBar::Shape shape)
{
    return shape == QTabBar::RoundedWest || shape == QTabBar::TriangularWest;
}

bool isEast(QTabBar::Shape shape)
{
    return shape == QTabBar::RoundedEast || shape == QTabBar::TriangularEast;
}

bool isVertical(QTabBar::Shape shape)
{
    return isWest(shape) || isEast(shape);
}

bool isCurrentTabHighlighted(const QWidget *tabBar)
{
    return isSet(tabBar, Property::CurrentTabHighlighted) ||
           isSet(qApp, Property::AppCurrentTabHighlighted);
}

} // namespace TARN::Tabs
