#include "style/drawing/Marks.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

namespace TARN {

void drawCheckMark(QPainter &painter, const QRect &rect, const QBrush &brush)
{
    const qreal width = rect.width();
    const qreal height = rect.height();
    const QPointF corners[] = {{4.0, height * 0.5}, {width * 0.5, height - 3}, {width - 3.5, 4.0}};
    QPainterPath tick(corners[0]);
    tick.lineTo(corners[1]);
    tick.lineTo(corners[2]);
    tick.translate(rect.topLeft());

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(brush, 1.8, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(tick);
    painter.restore();
}

void drawRadioMark(QPainter &painter, const QRect &rect, const QBrush &brush)
{
    const int extent = qMin(rect.width(), rect.height());
    const qreal radius = extent / 3.5;
    // An odd extent counts half a pixel more, so that the dot is centred on whole coordinates.
    const qreal shift = extent % 2 != 0 ? 0.5 : 0;
    const QPointF center = QRectF(rect).center() + QPointF(shift, shift);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawEllipse(center, radius, radius);
    painter.restore();
}

} // namespace TARN
