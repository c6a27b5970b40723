#pragma once

#include <QtWidgets/QStyleOption>

#include <support/painting/Pixels.h>

inline constexpr QSize pictureSize(120, 40);
inline constexpr QRect buttonRect(10, 5, 100, 30);

inline QStyleOptionButton buttonOption(QStyle::State state,
                                       QStyleOptionButton::ButtonFeatures features = {})
{
    QStyleOptionButton option;
    option.rect = buttonRect;
    option.state = state;
    option.features = features;
    return option;
}

inline QStyleOptionButton iconOption(QStyle::State state,
                                     QStyleOptionButton::ButtonFeatures features = {})
{
    QStyleOptionButton option = buttonOption(state, features);
    option.icon = squareIcon();
    option.iconSize = QSize(16, 16);
    return option;
}
