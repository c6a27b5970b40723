#include "style/families/Splitters.h"

#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/brushes/KeptBrushes.h"
#include "style/drawing/Grips.h"

#include <QtGui/QPainter>

namespace TARN::Splitters {

namespace {

/// Draws grips from one end of the handle to the other.
void drawHandleGrips(QPainter &painter, const QStyleOption &option)
{
    const QRect &rect = option.rect;
    // The handle of widgets side by side is upright. A last grip that would stick out is left out.
    if (has(option, QStyle::State_Horizontal)) {
        drawGrips(painter, Qt::Vertical, rect.top(), rect.bottom(),
                  rect.left() + (rect.width() - lightGrip) / 2);
    } else {
        drawGrips(painter, Qt::Horizontal, rect.left(), rect.right(),
                  rect.top() + (rect.height() - lightGrip) / 2);
    }
}

} // namespace

bool drawHandle(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    QPainter &painter = *request.painter;
    if (option.rect.isEmpty()) {
        return true;
    }
    if (isSet(request.widget, Property::Filled)) {
        painter.fillRect(option.rect, cardBorderBrush(isEnabled(option)));
    }
    if (isSet(request.widget, Property::Small)) {
        // A small handle is narrower than its grips.
        painter.save();
        painter.setClipRect(option.rect, Qt::IntersectClip);
        drawHandleGrips(painter, option);
        painter.restore();
    }
    return true;
}

} // namespace TARN::Splitters
