#include "style/families/ToolBars.h"

#include "style/BaseStyle.h"

#include <QtGui/QPainter>

namespace TARN::ToolBars {

bool drawHandle(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawSeparator(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawToolBar(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

} // namespace TARN::ToolBars

namespace TARN {

void BaseStyle::drawGrips(QPainter &painter, Qt::Orientation orientation, int from, int to,
                          int across, int step, int lightSize, int darkSize) const
{
    const QColor light(255, 255, 255, 90);
    const QColor dark(0, 0, 0, 60);
    const bool isVertical = orientation == Qt::Vertical;
    // The dark dots of a vertical row are always single pixels.
    const int darkExtent = isVertical ? 1 : darkSize;
    for (int along = from; along < to; along += qMax(step, 1)) {
        const QPoint corner = isVertical ? QPoint(across, along) : QPoint(along, across);
        painter.fillRect(QRect(corner, QSize(lightSize, lightSize)), light);
        painter.fillRect(QRect(corner, QSize(darkExtent, darkExtent)), dark);
    }
}

} // namespace TARN
