#include "style/families/ToolBars.h"

#include "catalogue/Names.h"
#include "style/BaseStyle.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/drawing/Drawing.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QToolBar>

namespace TARN {

namespace ToolBars {

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

} // namespace

bool drawHandle(const BaseStyle &style, const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    const QRect &rect = option.rect;
    const int x = (rect.left() + rect.right()) / 2;
    const int y = (rect.top() + rect.bottom()) / 2;
    // The ends are uneven: the row ends where the next grip would start.
    if (has(option, QStyle::State_Horizontal)) {
        style.drawGrips(*request.painter, Qt::Vertical, y - 8, y + 10, x, gripStep, lightGrip,
                        darkGrip);
    } else {
        style.drawGrips(*request.painter, Qt::Horizontal, x - 6, x + 12, y, gripStep, lightGrip,
                        darkGrip);
    }
    return true;
}

bool drawSeparator(const BaseStyle & /*style*/, const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    const QRect &rect = option.rect;
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

bool drawToolBar(const BaseStyle & /*style*/, const PaintRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionToolBar *>(request.option);
    const auto *toolBar = qobject_cast<const QToolBar *>(request.widget);
    if (!option || !toolBar) {
        return false;
    }
    // Among other widgets a tool bar is a row of buttons on their common ground.
    if (!toolBar->isWindow() && !isA(toolBar->parent(), "QMainWindow")) {
        return true;
    }
    QPainter &painter = *request.painter;
    const bool enabled = isEnabled(*option);
    const QBrush &border = BaseStyle::getBorderBrush(enabled);
    // Tool bars continue the menu bar, and their separators stand out from its ground.
    painter.fillRect(option->rect, themeBrush(BrushName::BackgroundSubLevel2Brush, enabled));
    if (toolBar->isWindow()) {
        fillFrame(painter, option->rect, border);
    } else {
        drawInnerEdge(painter, *option, border);
    }
    return true;
}

} // namespace ToolBars

namespace {

/// Beyond, the coordinates of the painter overflow.
constexpr qint64 farthest = 1 << 24;
/// A row of so many grips is longer than any screen.
constexpr qint64 mostGrips = 10000;

/// Where grips stand: from the first position on, every so many pixels, before the end.
struct GripRow
{
    qint64 first;
    qint64 end;
    qint64 step;
};

/// Returns the part of a row that can be painted. One that does not advance is its first grip.
GripRow paintableRow(qint64 from, qint64 to, qint64 step)
{
    if (step <= 0) {
        return {from, from < -farthest ? from : qMin(qMin(to, farthest), from + 1), 1};
    }
    const qint64 skipped = qMax<qint64>(0, -farthest - from + step - 1) / step;
    const qint64 first = from + skipped * step;
    return {first, qMin(qMin(to, farthest), first + mostGrips * step), step};
}

QSize dotSize(int extent)
{
    const int bounded = int(qBound<qint64>(0, extent, farthest));
    return {bounded, bounded};
}

} // namespace

void BaseStyle::drawGrips(QPainter &painter, Qt::Orientation orientation, int from, int to,
                          int across, int step, int lightSize, int darkSize) const
{
    if (qAbs(qint64(across)) > farthest) {
        return;
    }
    const QColor light(255, 255, 255, 90);
    const QColor dark(0, 0, 0, 60);
    const bool isVertical = orientation == Qt::Vertical;
    const QSize lightDot = dotSize(lightSize);
    // The dark dots of a vertical row are always single pixels.
    const QSize darkDot = dotSize(isVertical ? 1 : darkSize);
    const GripRow row = paintableRow(from, to, step);
    for (qint64 along = row.first; along < row.end; along += row.step) {
        const QPoint corner = isVertical ? QPoint(across, int(along)) : QPoint(int(along), across);
        painter.fillRect(QRect(corner, lightDot), light);
        painter.fillRect(QRect(corner, darkDot), dark);
    }
}

} // namespace TARN
