#include "style/families/item_views/Headers.h"

#include "catalogue/Names.h"
#include "style/asking/OptionState.h"
#include "style/drawing/Icons.h"
#include "style/drawing/Lines.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QLinearGradient>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleOption>

namespace TARN::Headers {

namespace {

/// The line below a section and the one at its end.
constexpr int edge = 1;

/// The arrow is an icon whose mark lies in its middle.
constexpr int arrowExtent = 16;
/// How far the middle of the arrow is from the end of its section.
constexpr int arrowDistance = 13;
/// How far above the middle of its section the arrow is, where its mark seems to be beside the
/// text.
constexpr int arrowRise = 2;
constexpr int arrowGap = 4;

/// Returns the room between the edge of a section and its text: as for an application's texts,
/// whatever font a header has.
int padding()
{
    return QFontMetrics(QApplication::font()).xHeight();
}

bool isSorted(const QStyleOptionHeader *header)
{
    return header && header->sortIndicator != QStyleOptionHeader::None;
}

/// Returns the place of the arrow before it is mirrored.
QRect arrowPlace(const QStyleOption &option)
{
    QRect place(0, 0, arrowExtent, arrowExtent);
    const QRect &rect = option.rect;
    const QPoint toEnd(rect.right() + 1 - arrowDistance, rect.bottom() + 1 - arrowDistance);
    place.moveCenter(has(option, QStyle::State_Horizontal)
                         ? QPoint(toEnd.x(), rect.center().y() + 1 - arrowRise)
                         : QPoint(rect.center().x(), toEnd.y()));
    return place;
}

/// Takes from \a label what the arrow needs, and some space beside it.
void keepClearOfArrow(QRect &label, const QStyleOption &option)
{
    constexpr int space = (arrowExtent - markSize) / 2 - arrowGap;
    const QRect arrow = arrowPlace(option);
    if (has(option, QStyle::State_Horizontal)) {
        label.setRight(qMin(label.right(), arrow.left() + space - 1));
    } else {
        label.setBottom(qMin(label.bottom(), arrow.top() + space - 1));
    }
}

/// Returns the brush that a model asks for as the ground of a section; null if it does not.
const QBrush *groundOfModel(const PaintRequest &request)
{
    const QBrush &ground = request.option->palette.button();
    const bool isOwn = request.widget && ground != request.widget->palette().button();
    return isOwn ? &ground : nullptr;
}

/// Fills \a rect from top to bottom with one colour fading into the other.
void fillGradient(QPainter &painter, const QRect &rect, const QColor &top, const QColor &bottom)
{
    QLinearGradient gradient(0, 0, 0, rect.height());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    painter.fillRect(rect, gradient);
}

void fillGround(const PaintRequest &request)
{
    QPainter &painter = *request.painter;
    const QRect &rect = request.option->rect;
    painter.setBrushOrigin(rect.topLeft());
    const QColor &ground = themeColor(ColorName::BackgroundSubLevel2Color, true);
    if (const QBrush *brush = groundOfModel(request)) {
        painter.fillRect(rect, *brush);
    } else if (isEnabled(*request.option)) {
        fillGradient(painter, rect, themeColor(ColorName::BackgroundSubLevel1Color, true), ground);
    } else {
        painter.fillRect(rect, ground);
    }
}

/// Draws the icon at the beginning of \a rect, which is left with the rest.
void drawIcon(const PaintRequest &request, const QStyleOptionHeader &header, QRect &rect)
{
    const int extent = request.metric(QStyle::PM_SmallIconSize);
    const QPixmap pixmap =
        iconPixmap(header.icon, {extent, extent},
                   isEnabled(header) ? QIcon::Normal : QIcon::Disabled, QIcon::Off, request.widget);
    const QRect place =
        QStyle::alignedRect(header.direction, header.iconAlignment, sizeOf(pixmap), rect);
    if (rect.contains(place)) {
        drawItemPixmap(request.proxy(), *request.painter, place, pixmap);
    }
    const int room = place.width() + request.metric(QStyle::PM_HeaderMargin);
    isRightToLeft(header) ? rect.setRight(rect.right() - room) : rect.setLeft(rect.left() + room);
}

} // namespace

QRect labelRect(const SubElementRequest &request)
{
    const QRect &rect = request.option->rect;
    const int sides = padding();
    // What is lower than it would like to be shows its text rather than its padding.
    const int textHeight = request.option->fontMetrics.height();
    const int ends = qBound(0, (rect.height() - edge - textHeight) / 2, sides);
    QRect label = rect.adjusted(sides, ends, -sides - edge, -ends - edge);
    if (isSorted(qstyleoption_cast<const QStyleOptionHeader *>(request.option))) {
        keepClearOfArrow(label, *request.option);
    }
    return QStyle::visualRect(request.option->direction, rect, label);
}

QRect arrowRect(const SubElementRequest &request)
{
    return QStyle::visualRect(request.option->direction, request.option->rect,
                              arrowPlace(*request.option));
}

QSize sectionSize(const ContentsRequest &request)
{
    const int around = 2 * padding() + edge;
    return request.baseSize() + QSize(around, around);
}

bool drawHeader(const PaintRequest &request)
{
    const auto *header = qstyleoption_cast<const QStyleOptionHeader *>(request.option);
    if (!header || header->rect.isEmpty()) {
        return header != nullptr;
    }
    request.draw(QStyle::CE_HeaderSection, *header);
    QStyleOptionHeader part(*header);
    part.rect = request.proxy().subElementRect(QStyle::SE_HeaderLabel, header, request.widget);
    if (part.rect.isValid()) {
        request.draw(QStyle::CE_HeaderLabel, part);
    }
    if (!isSorted(header)) {
        return true;
    }
    part.rect = request.proxy().subElementRect(QStyle::SE_HeaderArrow, header, request.widget);
    if (header->rect.contains(part.rect)) {
        request.draw(QStyle::PE_IndicatorHeaderArrow, part);
    } else {
        request.painter->save();
        request.painter->setClipRect(header->rect, Qt::IntersectClip);
        request.draw(QStyle::PE_IndicatorHeaderArrow, part);
        request.painter->restore();
    }
    return true;
}

bool drawSection(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    if (option.rect.isEmpty()) {
        return true;
    }
    fillGround(request);
    if (isEnabled(option)) {
        fillEdge(*request.painter, option.rect, Qt::BottomEdge,
                 themeColor(ColorName::BackgroundSubLevel2Color, true));
        fillEdge(*request.painter, option.rect,
                 isRightToLeft(option) ? Qt::LeftEdge : Qt::RightEdge,
                 themeColor(ColorName::BackgroundUpLevel1Color, true));
    }
    return true;
}

bool drawLabel(const PaintRequest &request)
{
    const auto *header = qstyleoption_cast<const QStyleOptionHeader *>(request.option);
    if (!header) {
        return false;
    }
    QRect rect = header->rect;
    if (!header->icon.isNull()) {
        drawIcon(request, *header, rect);
    }
    if (header->text.isEmpty() || rect.isEmpty()) {
        return true;
    }
    QPainter &painter = *request.painter;
    const QFont font = painter.font();
    if (has(*header, QStyle::State_On)) {
        QFont bold = font;
        bold.setBold(true);
        painter.setFont(bold);
    }
    request.proxy().drawItemText(&painter, rect, int(header->textAlignment), header->palette,
                                 isEnabled(*header), header->text, QPalette::ButtonText);
    painter.setFont(font);
    return true;
}

bool drawArrow(const PaintRequest &request)
{
    const auto *header = qstyleoption_cast<const QStyleOptionHeader *>(request.option);
    if (!isSorted(header) || header->rect.isEmpty()) {
        return header != nullptr;
    }
    const bool pointsUp = header->sortIndicator == QStyleOptionHeader::SortUp;
    drawTintedIcon(*request.painter, header->rect,
                   keptIcon(pointsUp ? "arrow.up.small" : "arrow.down.small"),
                   header->palette.buttonText());
    return true;
}

bool drawEmptyArea(const PaintRequest &request)
{
    request.painter->fillRect(request.option->rect,
                              themeColor(ColorName::BackgroundSubLevel2Color, true));
    return true;
}

} // namespace TARN::Headers
