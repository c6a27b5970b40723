#pragma once

#include <QtCore/QRect>
#include <QtWidgets/QStyleOption>

inline QRect mirrored(const QRect &rect, const QRect &within)
{
    QRect result = rect;
    result.moveLeft(within.left() + within.right() - rect.right());
    return result;
}

inline QStyleOptionSlider sliderOption(const QRect &rect, Qt::Orientation orientation)
{
    QStyleOptionSlider option;
    option.rect = rect;
    option.orientation = orientation;
    option.state = QStyle::State_Enabled;
    if (orientation == Qt::Horizontal) {
        option.state |= QStyle::State_Horizontal;
    }
    option.maximum = 100;
    option.sliderPosition = 30;
    option.sliderValue = 30;
    option.pageStep = 10;
    option.upsideDown = orientation == Qt::Vertical;
    return option;
}
