#include "style/families/Splitters.h"

#include "style/BaseStyle.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/families/ToolBars.h"

#include <QtGui/QPainter>

namespace TARN::Splitters {

namespace {

/// Draws grips from one end of the handle to the other.
void drawGrips(const BaseStyle &style, QPainter &painter, const QStyleOption &option)
{
    using namespace ToolBars;
    const QRect &rect = option.rect;
    // The handle of widgets side by side is upright. A last grip that would stick out is left out.
    if (has(option, QStyle::State_Horizontal)) {
        style.drawGrips(painter, Qt::Vertical, rect.top(), rect.bottom(),
                        rect.left() + (rect.width() - lightGrip) / 2, gripStep, lightGrip,
                        darkGrip);
    } else {
        style.drawGrips(painter, Qt::Horizontal, rect.left(), rect.right(),
                        rect.top() + (rect.height() - lightGrip) / 2, gripStep, lightGrip,
                        darkGrip);
    }
}

} // namespace

bool drawHandle(const BaseStyle &style, const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    QPainter &painter = *request.painter;
    if (option.rect.isEmpty()) {
        return true;
    }
    if (isSet(request.widget, "filled")) {
        painter.fillRect(option.rect, BaseStyle::getBorderBrush(isEnabled(option)));
    }
    if (isSet(request.widget, "small")) {
        // A small handle is narrower than its grips.
        painter.save();
        painter.setClipRect(option.rect, Qt::IntersectClip);
        drawGrips(style, painter, option);
        painter.restore();
    }
    return true;
}

} // namespace TARN::Splitters
