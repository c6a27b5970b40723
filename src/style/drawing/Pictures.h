#pragma once

#include <QtCore/QtGlobal>

class QBrush;
class QImage;
class QPainter;
class QPoint;
class QPointF;

/// Pictures that are copied pixel by pixel, which takes a part of the time that drawing takes.
namespace TARN {

/// Returns how many pixels of the device there are to a unit of \a painter where it copies pictures
/// as they are: it draws into a picture in memory, neither turned nor stretched. 0 where it does
/// not.
qreal pictureScale(const QPainter &painter);

/// Tells whether \a brush is one colour, which is all that pictures are told apart by.
bool isPlainColor(const QBrush &brush);

/// Copies \a picture with its corner \a offset pixels from the pixel of the device that is closest
/// to \a corner; \a scale is that of the painter.
void copyPicture(QPainter &painter, const QPointF &corner, const QPoint &offset,
                 const QImage &picture, qreal scale);

} // namespace TARN
