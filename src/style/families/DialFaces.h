#pragma once

#include <QtCore/QPointF>
#include <QtGui/QBrush>

class QPainter;

/// What a dial's handle moves on.
namespace TARN::Dials {

/// The measures of a dial, in units of the painter.
struct FaceShape
{
    int side = 0;
    int handleExtent = 0;
    int grooveWidth = 0;
    int notchRoom = 0; ///< 0 when there are none
    bool isWrapping = false;

    bool operator==(const FaceShape &other) const;
};

/// What is drawn of a dial below its handle. A brush of Qt::NoBrush draws nothing.
struct Face
{
    FaceShape shape;
    QBrush groove{Qt::NoBrush};
    QBrush filled{Qt::NoBrush}; ///< the part between two shares of the way
    qreal filledFrom = 0;
    qreal filledTo = 0;
    QBrush notches{Qt::NoBrush};
    qint64 range = 0;    ///< of the values that have notches
    qint64 interval = 1; ///< from one notch to the next
};

/// Returns how long the way is that the handle moves.
int grooveLength(const FaceShape &shape);

/// Returns the middle of the handle where it has made \a share of the way.
QPointF handlePosition(const FaceShape &shape, const QPointF &center, qreal share);

/// Draws \a face around \a center. What was drawn lately is copied from a picture: to draw arcs
/// takes longer than to draw all the rest of a dial.
void drawFace(QPainter &painter, const QPointF &center, const Face &face);

} // namespace TARN::Dials
