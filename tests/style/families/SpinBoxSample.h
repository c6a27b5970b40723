#pragma once

#include <QtCore/QSize>
#include <QtWidgets/QStyleOption>

inline constexpr QSize sampleSize(80, 26);
// The sub-controls, as the geometry of the style places them in that size.
inline constexpr QRect upButton(65, 0, 14, 13);
inline constexpr QRect downButton(65, 13, 14, 12);

inline QStyleOptionSpinBox spinBoxOption(QStyle::State state = QStyle::State_Enabled)
{
    QStyleOptionSpinBox option;
    option.rect = QRect(QPoint(), sampleSize);
    option.state = state;
    option.frame = true;
    option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
    option.subControls = QStyle::SC_SpinBoxFrame | QStyle::SC_SpinBoxEditField |
                         QStyle::SC_SpinBoxUp | QStyle::SC_SpinBoxDown;
    return option;
}
