#include "style/families/item_views/Indicators.h"

#include "style/asking/OptionState.h"
#include "style/drawing/Grips.h"
#include "style/drawing/Icons.h"
#include "style/drawing/Lines.h"
#include "style/families/Frames.h"
#include "style/families/item_views/Selections.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

namespace TARN::ItemViews {

namespace {

constexpr int gripLength = 7 * gripStep;

/// Draws \a icon in the middle of the room that is asked for.
void drawGlyph(const PaintRequest &request, const char *icon, const QBrush &brush)
{
    const QRect &room = request.option->rect;
    const int wanted = request.metric(QStyle::PM_SmallIconSize);
    const int extent = qMin(wanted, qMin(room.width(), room.height()));
    if (extent > 0) {
        drawTintedIcon(
            *request.painter,
            QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, {extent, extent}, room),
            keptIcon(icon), brush);
    }
}

const char *closedIcon(const QStyleOption &option)
{
    return isRightToLeft(option) ? "chevron.left.small" : "chevron.right.small";
}

/// Returns the icon that tells whether the items below an item are shown.
const char *branchIcon(const QStyleOption &option)
{
    return has(option, QStyle::State_Open) ? "chevron.down.small" : closedIcon(option);
}

/// Returns what the arrow of a branch is drawn in. The mouse marks it alone in a row at rest.
const QBrush &branchBrush(const QStyleOptionViewItem &option, const QWidget *widget)
{
    const bool isAlone =
        isHovered(option) && !has(option, QStyle::State_Selected) && !showsHover(option, widget);
    return isAlone ? option.palette.brush(QPalette::Active, QPalette::Highlight)
                   : itemTextBrush(option, widget, Mode::Complete);
}

} // namespace

bool drawColumnArrow(const PaintRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionViewItem *>(request.option);
    if (!option) {
        return false;
    }
    QStyleOptionViewItem arrow(*option);
    if (isEnabled(arrow) && has(arrow, QStyle::State_Selected)) {
        arrow.palette.setBrush(QPalette::WindowText,
                               arrow.palette.brush(QPalette::HighlightedText));
    }
    request.style.drawPrimitive(isRightToLeft(arrow) ? QStyle::PE_IndicatorArrowLeft
                                                     : QStyle::PE_IndicatorArrowRight,
                                &arrow, request.painter, request.widget);
    return true;
}

bool drawCompleteColumnArrow(const PaintRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionViewItem *>(request.option);
    if (option) {
        drawGlyph(request, closedIcon(*option),
                  itemTextBrush(*option, request.widget, Mode::Complete));
    }
    return option != nullptr;
}

bool drawBranch(const PaintRequest &request)
{
    if (!has(*request.option, QStyle::State_Children)) {
        return true;
    }
    QStyleOptionViewItem item;
    if (const auto *option = qstyleoption_cast<const QStyleOptionViewItem *>(request.option)) {
        item = *option;
    } else {
        item.QStyleOption::operator=(*request.option);
    }
    drawGlyph(request, branchIcon(item), branchBrush(item, request.widget));
    return true;
}

bool drawDropPlace(const PaintRequest &request)
{
    const QPalette &palette = request.option->palette;
    const QBrush &mark = palette.brush(QPalette::Active, QPalette::Highlight);
    const QRect &rect = request.option->rect;
    // What is selected has the colour of the mark, so some ground is left between them.
    if (rect.height() == 0) {
        request.painter->fillRect(QRect(rect.left(), rect.top() - 2, rect.width(), 4),
                                  palette.base());
        request.painter->fillRect(QRect(rect.left(), rect.top() - 1, rect.width(), 2), mark);
    } else {
        fillFrame(*request.painter, rect, mark);
        fillFrame(*request.painter, rect.adjusted(1, 1, -1, -1), palette.base());
    }
    return true;
}

bool drawFocusRect(const PaintRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionFocusRect *>(request.option);
    if (!option) {
        return false;
    }
    // The selection shows where the focus is.
    const QPalette::ColorGroup group = isEnabled(*option) ? QPalette::Normal : QPalette::Disabled;
    return option->backgroundColor == option->palette.color(group, QPalette::Highlight) ||
           Frames::drawFocusRect(request);
}

bool drawColumnGrip(const PaintRequest &request)
{
    const QRect &rect = request.option->rect;
    if (rect.isEmpty()) {
        return true;
    }
    // Seven dots are seen as a grip; more of them, as a line.
    const QPoint center = rect.center();
    const int from = qMax(center.y() - gripLength / 2, rect.top());
    const int to = qMin(from + gripLength, rect.bottom());
    drawGrips(*request.painter, Qt::Vertical, from, to, center.x());
    return true;
}

} // namespace TARN::ItemViews
