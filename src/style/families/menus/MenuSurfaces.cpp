#include "style/families/menus/MenuSurfaces.h"

#include "catalogue/Names.h"
#include "style/asking/OptionState.h"
#include "style/drawing/Lines.h"

#include <QtGui/QPainter>
#include <QtWidgets/QMenu>
#include <QtWidgets/qdrawutil.h>

namespace TARN::Menus {

namespace {

constexpr int frameDarkness = 160;

} // namespace

bool isSurfaceEnabled(const PaintRequest &request)
{
    return request.widget ? request.widget->isEnabled() : isEnabled(*request.option);
}

QColor outlineColor(const QStyleOption &option)
{
    return option.palette.color(QPalette::Window).darker(frameDarkness);
}

bool isHighlighted(const QStyleOption &option)
{
    return isEnabled(option) && has(option, QStyle::State_Selected);
}

const QBrush &textBrush(const QStyleOption &option)
{
    if (!isEnabled(option)) {
        return option.palette.brush(QPalette::Disabled, QPalette::Text);
    }
    return option.palette.brush(isHighlighted(option) ? QPalette::HighlightedText : QPalette::Text);
}

void drawCoveredOutline(const PaintRequest &request)
{
    const auto *menu = qobject_cast<const QMenu *>(request.widget);
    if (!menu) {
        return;
    }
    const QRect outer = menu->rect();
    const QRect covered = outer & request.option->rect;
    const QBrush brush(outlineColor(*request.option));
    const auto draw = [&](Qt::Edge side, bool isReached) {
        if (isReached) {
            fillEdge(*request.painter, covered, side, brush);
        }
    };
    draw(Qt::LeftEdge, covered.left() == outer.left());
    draw(Qt::RightEdge, covered.right() == outer.right());
    draw(Qt::TopEdge, covered.top() == outer.top());
    draw(Qt::BottomEdge, covered.bottom() == outer.bottom());
}

bool drawFrame(const PaintRequest &request)
{
    fillFrame(*request.painter, request.option->rect, outlineColor(*request.option));
    return true;
}

bool drawPanel(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    // A painter that is not at work has no device, which the frame would be drawn for.
    if (option.rect.isEmpty() || !request.painter->isActive()) {
        return true;
    }
    request.painter->fillRect(
        option.rect, themeBrush(BrushName::BackgroundSubLevel1Brush, isSurfaceEnabled(request)));
    qDrawPlainRect(request.painter, option.rect, outlineColor(option));
    return true;
}

} // namespace TARN::Menus
