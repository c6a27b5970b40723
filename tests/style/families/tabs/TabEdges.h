#pragma once

#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtTest/QtTest>
#include <QtWidgets/QTabBar>

Q_DECLARE_METATYPE(QTabBar::Shape)

/// Returns the pixel in the middle of an edge of \a rect.
inline QPoint middleOfEdge(const QRect &rect, Qt::Edge edge)
{
    switch (edge) {
    case Qt::TopEdge:
        return {rect.center().x(), rect.top()};
    case Qt::BottomEdge:
        return {rect.center().x(), rect.bottom()};
    case Qt::LeftEdge:
        return {rect.left(), rect.center().y()};
    case Qt::RightEdge:
        break;
    }
    return {rect.right(), rect.center().y()};
}

/// Adds rows of all shapes of tabs, each with the edge at which its page is.
inline void addShapes()
{
    QTest::addColumn<QTabBar::Shape>("shape");
    QTest::addColumn<Qt::Edge>("baseEdge");
    QTest::newRow("north") << QTabBar::RoundedNorth << Qt::BottomEdge;
    QTest::newRow("south") << QTabBar::RoundedSouth << Qt::TopEdge;
    QTest::newRow("west") << QTabBar::RoundedWest << Qt::RightEdge;
    QTest::newRow("east") << QTabBar::RoundedEast << Qt::LeftEdge;
    QTest::newRow("triangular north") << QTabBar::TriangularNorth << Qt::BottomEdge;
    QTest::newRow("triangular south") << QTabBar::TriangularSouth << Qt::TopEdge;
    QTest::newRow("triangular west") << QTabBar::TriangularWest << Qt::RightEdge;
    QTest::newRow("triangular east") << QTabBar::TriangularEast << Qt::LeftEdge;
}

inline constexpr Qt::Edge edges[] = {Qt::TopEdge, Qt::BottomEdge, Qt::LeftEdge, Qt::RightEdge};
