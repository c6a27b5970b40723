#pragma once

#include <QtCore/QSize>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtWidgets/QStyleOption>

inline const QSize canvas(140, 140);
inline const QColor plainText(1, 2, 3);
inline const QColor filledText(4, 5, 6);

/// Returns the option of a bar of a hundred values, with a pixel for each between the lines at its
/// ends.
inline QStyleOptionProgressBar barOption(Qt::Orientation orientation,
                                         QStyle::State state = QStyle::State_Enabled)
{
    QStyleOptionProgressBar option;
    option.rect = orientation == Qt::Horizontal ? QRect(10, 10, 102, 20) : QRect(10, 10, 20, 102);
    option.state = state;
    option.orientation = orientation;
    option.maximum = 100;
    option.progress = 30;
    option.bottomToTop = true;
    option.textVisible = true;
    option.palette = QPalette();
    return option;
}
