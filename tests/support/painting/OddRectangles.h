#pragma once

#include <QtCore/QRect>
#include <QtTest/QtTest>

/// Further than anything is ever painted, and near enough that sizes do not overflow.
inline constexpr int farAway = 1 << 24;

/// Adds rows of rectangles that nobody lays out on purpose, in the column "rect".
inline void addOddRectangles()
{
    QTest::addColumn<QRect>("rect");
    QTest::newRow("empty") << QRect();
    QTest::newRow("inside out") << QRect(20, 20, -10, -10);
    QTest::newRow("one pixel") << QRect(5, 5, 1, 1);
    QTest::newRow("huge") << QRect(QPoint(-farAway, -farAway), QPoint(farAway, farAway));
}
