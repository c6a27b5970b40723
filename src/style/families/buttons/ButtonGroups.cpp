#include "style/families/buttons/ButtonGroups.h"

#include "catalogue/Names.h"
#include "common_utils/Helpers.h"
#include "style/asking/Properties.h"
#include "style/drawing/Shapes.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyle>
#include <QtWidgets/QWidget>

namespace TARN::Buttons {

namespace {

/// Where a button stands among the visible ones of its group.
struct GroupPlace
{
    bool isHorizontal;
    int count;
    int index; ///< -1 for a button that is not visible

    bool isFirst() const { return index == 0; }
    bool isLast() const { return index == count - 1; }
    bool isHidden() const { return index == -1; }
};

GroupPlace groupPlace(const QWidget *widget)
{
    const QObject *group = widget ? widget->parent() : nullptr;
    return {propertyOf(group, Property::Orientation).toInt() == Qt::Horizontal,
            propertyOf(group, Property::ButtonGroupVisibleCount).toInt(),
            propertyOf(widget, Property::ButtonVisibleIndex).toInt()};
}

/// Returns the corners at which a button adjoins others of its group. The places count from the
/// left, whatever the direction of the layout is.
Helpers::StraightCornerFlags innerCorners(const GroupPlace &place)
{
    using namespace Helpers;
    if (place.count == 1) {
        return NoStraightCorner;
    }
    if (place.isFirst()) {
        return place.isHorizontal ? StraightTopRight | StraightBottomRight
                                  : StraightBottomRight | StraightBottomLeft;
    }
    if (place.isLast()) {
        return place.isHorizontal ? StraightTopLeft | StraightBottomLeft
                                  : StraightTopLeft | StraightTopRight;
    }
    return StraightTopLeft | StraightTopRight | StraightBottomRight | StraightBottomLeft;
}

bool isDrawnInGroup(const GroupPlace &place)
{
    return place.count == 1 || place.isFirst() || place.isLast() || !place.isHidden();
}

/// Draws the dots of \a extent at the ends of a step of a workflow at which others may follow: a
/// single step has one, too.
void drawLinkDots(QPainter &painter, const QRectF &rect, int extent, const GroupPlace &place)
{
    const bool endsHere = place.isLast() && !place.isFirst();
    const bool hasNone = place.isHidden() && !place.isLast();
    const QSizeF dot(extent, extent);
    const QPointF middle = rect.center() - QPointF(extent / 2.0, extent / 2.0);
    if (!place.isFirst() && !hasNone) {
        painter.drawEllipse(QRectF(place.isHorizontal ? QPointF(rect.left(), middle.y())
                                                      : QPointF(middle.x(), rect.top()),
                                   dot));
    }
    if (!endsHere && !hasNone) {
        painter.drawEllipse(QRectF(place.isHorizontal ? QPointF(rect.right() - extent, middle.y())
                                                      : QPointF(middle.x(), rect.bottom() - extent),
                                   dot));
    }
}

} // namespace

void drawInGroup(const QStyle &proxy, const QRectF &rect, QPainter &painter,
                 const QStyleOption *option, int radius, const ButtonBrushes &brushes,
                 const QWidget *widget)
{
    const GroupPlace place = groupPlace(widget);
    if (!isSet(widget ? widget->parent() : nullptr, Property::ButtonGroupWorkflow)) {
        if (isDrawnInGroup(place)) {
            Helpers::drawRoundedRectShape(rect, radius, innerCorners(place), &painter);
        }
        return;
    }
    const int spacing = proxy.pixelMetric(QStyle::PM_RadioButtonLabelSpacing, option, widget);
    const qreal margin = spacing / 2.0;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    Helpers::drawRoundedRectShape(rect.adjusted(margin, margin, -margin, -margin),
                                  int((rect.height() - spacing) / 2), Helpers::NoStraightCorner,
                                  &painter);
    painter.setBrush(brushes.border);
    // The ring around a dot is the ground of the group, which has one look only.
    painter.setPen(outlinePen(themeBrush(BrushName::ListBackgroundBrush, true)));
    drawLinkDots(painter, rect, spacing, place);
}

} // namespace TARN::Buttons
