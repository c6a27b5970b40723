#pragma once

#include <QtCore/QSize>
#include <QtWidgets/QStyleOption>

#include <support/painting/Pixels.h>

inline constexpr QSize sampleSize(120, 28);
// The arrow and the edit fields, as the geometry of the style places them in that size.
inline constexpr QRect arrowRect(96, 0, 24, 28);

inline QStyleOptionComboBox comboBoxOption(bool isEditable,
                                           QStyle::State state = QStyle::State_Enabled)
{
    QStyleOptionComboBox option;
    option.rect = QRect(QPoint(), sampleSize);
    option.state = state;
    option.editable = isEditable;
    option.subControls = QStyle::SC_All;
    return option;
}

/// An option of which the text fills every pixel of its line.
inline QStyleOptionComboBox labelOption(bool isEditable,
                                        QStyle::State state = QStyle::State_Enabled)
{
    QStyleOptionComboBox option = comboBoxOption(isEditable, state);
    option.currentText = blocks();
    return option;
}
