#include "style/families/ToolBars.h"

#include "catalogue/Names.h"
#include "style/asking/OptionState.h"
#include "style/brushes/KeptBrushes.h"
#include "style/drawing/Grips.h"
#include "style/drawing/Lines.h"
#include "style/drawing/Shapes.h"

#include <QtGui/QPainter>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QToolBar>

namespace TARN::ToolBars {

namespace {

/// How far the line of a separator stays away from the edges of the tool bar.
constexpr int separatorMargin = 5;

/// Draws the edge of a tool bar that faces the contents of the window.
void drawInnerEdge(QPainter &painter, const QStyleOptionToolBar &option, const QBrush &brush)
{
    switch (option.toolBarArea) {
    case Qt::TopToolBarArea:
        fillEdge(painter, option.rect, Qt::BottomEdge, brush);
        break;
    case Qt::BottomToolBarArea:
        fillEdge(painter, option.rect, Qt::TopEdge, brush);
        break;
    case Qt::LeftToolBarArea:
        fillEdge(painter, option.rect, Qt::RightEdge, brush);
        break;
    case Qt::RightToolBarArea:
        fillEdge(painter, option.rect, Qt::LeftEdge, brush);
        break;
    default:
        break;
    }
}

/// Tool bars continue the menu bar, and their separators stand out from its ground.
void fillGround(QPainter &painter, const QStyleOption &option)
{
    painter.fillRect(option.rect,
                     themeBrush(BrushName::BackgroundSubLevel2Brush, isEnabled(option)));
}

} // namespace

bool drawHandle(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    const QRect rect = withinReach(option.rect);
    const int x = (rect.left() + rect.right()) / 2;
    const int y = (rect.top() + rect.bottom()) / 2;
    // The ends are uneven: the row ends where the next grip would start.
    if (has(option, QStyle::State_Horizontal)) {
        drawGrips(*request.painter, Qt::Vertical, y - 8, y + 10, x);
    } else {
        drawGrips(*request.painter, Qt::Horizontal, x - 6, x + 12, y);
    }
    return true;
}

bool drawSeparator(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    const QRect rect = withinReach(option.rect);
    // The line crosses the direction in which the bar runs.
    QRect line;
    if (has(option, QStyle::State_Horizontal)) {
        line = {rect.left() + rect.width() / 2, rect.top() + separatorMargin, 1,
                rect.height() - 2 * separatorMargin};
    } else {
        line = {rect.left() + separatorMargin, rect.top() + rect.height() / 2,
                rect.width() - 2 * separatorMargin, 1};
    }
    if (!rect.isEmpty() && !line.isEmpty()) {
        request.painter->fillRect(
            line, themeColor(ColorName::BackgroundUpLevel1Color, isEnabled(option)));
    }
    return true;
}

bool drawToolBar(const PaintRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionToolBar *>(request.option);
    const auto *toolBar = qobject_cast<const QToolBar *>(request.widget);
    if (!option || !toolBar) {
        return false;
    }
    // Among other widgets a tool bar is a row of buttons on their common ground.
    if (!toolBar->isWindow() && !qobject_cast<const QMainWindow *>(toolBar->parent())) {
        return true;
    }
    QPainter &painter = *request.painter;
    const QBrush &border = cardBorderBrush(isEnabled(*option));
    fillGround(painter, *option);
    if (toolBar->isWindow()) {
        fillFrame(painter, option->rect, border);
    } else {
        drawInnerEdge(painter, *option, border);
    }
    return true;
}

bool drawPanel(const PaintRequest &request)
{
    fillGround(*request.painter, *request.option);
    return true;
}

} // namespace TARN::ToolBars
