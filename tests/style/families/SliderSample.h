#pragma once

#include <QtCore/QSize>
#include <QtWidgets/QStyleOption>

inline const QSize canvas(120, 120);

/// Returns the option of a slider of a hundred values, 25 pixels thick, on which the handle has a
/// pixel for each value.
inline QStyleOptionSlider sliderOption(Qt::Orientation orientation,
                                       QStyle::State state = QStyle::State_Enabled)
{
    QStyleOptionSlider option;
    option.rect = orientation == Qt::Horizontal ? QRect(0, 0, 114, 25) : QRect(0, 0, 25, 114);
    option.state = state;
    option.orientation = orientation;
    option.maximum = 100;
    option.sliderPosition = 30;
    option.sliderValue = 30;
    option.singleStep = 1;
    option.pageStep = 10;
    option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
    return option;
}
