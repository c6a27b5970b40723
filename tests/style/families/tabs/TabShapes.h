#pragma once

#include <QtWidgets/QTabBar>

inline constexpr QTabBar::Shape allShapes[] = {
    QTabBar::RoundedNorth,   QTabBar::RoundedSouth,    QTabBar::RoundedWest,
    QTabBar::RoundedEast,    QTabBar::TriangularNorth, QTabBar::TriangularSouth,
    QTabBar::TriangularWest, QTabBar::TriangularEast,
};

inline bool isWest(QTabBar::Shape shape)
{
    return shape == QTabBar::RoundedWest || shape == QTabBar::TriangularWest;
}

inline bool isEast(QTabBar::Shape shape)
{
    return shape == QTabBar::RoundedEast || shape == QTabBar::TriangularEast;
}

inline bool isVertical(QTabBar::Shape shape)
{
    return isWest(shape) || isEast(shape);
}
