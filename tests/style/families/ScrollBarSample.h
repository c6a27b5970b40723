#pragma once

#include <QtCore/QSize>
#include <QtWidgets/QStyleOption>

inline const QSize canvas(120, 120);

inline QStyleOptionSlider scrollBarOption(QStyle::State state, Qt::Orientation orientation)
{
    QStyleOptionSlider option;
    option.rect = orientation == Qt::Horizontal ? QRect(0, 0, 120, 16) : QRect(0, 0, 16, 120);
    option.state = state;
    option.orientation = orientation;
    option.maximum = 100;
    option.sliderPosition = 50;
    option.sliderValue = 50;
    option.pageStep = 50;
    option.subControls = QStyle::SC_All;
    return option;
}
