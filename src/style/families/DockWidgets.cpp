#include "style/families/DockWidgets.h"

#include "catalogue/Names.h"
#include "resources/kept/KeptValue.h"
#include "style/asking/OptionState.h"
#include "style/brushes/KeptBrushes.h"
#include "style/drawing/Grips.h"
#include "style/drawing/Lines.h"
#include "style/polishing/Polishing.h"

#include <QtGui/QPainter>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QStyleOption>

#include <optional>

namespace TARN::DockWidgets {

namespace {

/// The grips and what keeps the title away from them.
constexpr int gripRoom = lightGrip + 6;
/// Four grips across the title bar reach that far to both sides of its middle.
constexpr int gripReach = 5;
/// How many dots show where a dock can be resized.
constexpr int handleDots = 5;

void drawTitleGrips(QPainter &painter, const QStyleOptionDockWidget &title, const QRect &textRect)
{
    const QRect &rect = title.rect;
    if (title.verticalTitleBar) {
        const int middle = rect.left() + rect.width() / 2;
        drawGrips(painter, Qt::Horizontal, qMax(middle - gripReach, rect.left()),
                  qMin(middle + gripReach, rect.right()), textRect.bottom() - lightGrip + 1);
        return;
    }
    const int middle = rect.top() + rect.height() / 2;
    const QRect grips =
        QStyle::visualRect(title.direction, textRect,
                           QRect(textRect.left(), textRect.top(), lightGrip, textRect.height()));
    drawGrips(painter, Qt::Vertical, qMax(middle - gripReach, rect.top()),
              qMin(middle + gripReach, rect.bottom()), grips.left());
}

/// Returns \a textRect without the room of the grips at its start; upright titles start at the
/// bottom.
QRect withoutGrips(const QStyleOptionDockWidget &title, const QRect &textRect)
{
    if (title.verticalTitleBar) {
        return textRect.adjusted(0, 0, 0, -gripRoom);
    }
    return isRightToLeft(title) ? textRect.adjusted(0, 0, -gripRoom, 0)
                                : textRect.adjusted(gripRoom, 0, 0, 0);
}

struct TitleFont
{
    QFont plain;
    QFont stressed;
};

/// Returns the font of titles: that of the dock, stressed. The painter's may be the one that the
/// dock was made with.
const QFont &titleFont(const QPainter &painter, const QWidget *widget)
{
    // All docks have the same font as a rule, and finding the stressed one takes its time.
    static ProcessCached<std::optional<TitleFont>> kept([] { return std::optional<TitleFont>(); });
    std::optional<TitleFont> &font = kept.value();
    const QFont &plain = widget ? widget->font() : painter.font();
    if (!font || !font->plain.isCopyOf(plain)) {
        font = {plain, plain};
        font->stressed.setWeight(QFont::DemiBold);
    }
    return font->stressed;
}

void drawText(const PaintRequest &request, const QStyleOptionDockWidget &title,
              const QRect &textRect)
{
    QPainter &painter = *request.painter;
    painter.save();
    QRect rect = textRect;
    Qt::Alignment start = QStyle::visualAlignment(title.direction, Qt::AlignLeft);
    if (title.verticalTitleBar) {
        painter.translate(textRect.left(), textRect.bottom() + 1);
        painter.rotate(-90);
        rect = {0, 0, textRect.height(), textRect.width()};
        start = Qt::AlignLeft | Qt::AlignAbsolute;
    }
    painter.setFont(titleFont(painter, request.widget));
    const QString text = painter.fontMetrics().elidedText(title.title, Qt::ElideRight, rect.width(),
                                                          Qt::TextShowMnemonic);
    // The letter that chooses the dock in a menu does nothing here.
    request.proxy().drawItemText(
        &painter, rect, int(start | Qt::AlignVCenter) | Qt::TextSingleLine | Qt::TextHideMnemonic,
        title.palette, isEnabled(title), text, QPalette::WindowText);
    painter.restore();
}

} // namespace

void polish(Polishing &polishing)
{
    polishing.setAttribute(Qt::WA_StyledBackground);
}

bool drawBackground(const PaintRequest &request)
{
    if (!qobject_cast<const QDockWidget *>(request.widget)) {
        return false;
    }
    request.painter->fillRect(request.option->rect, request.option->palette.light());
    return true;
}

bool drawTitle(const PaintRequest &request)
{
    const auto *title = qstyleoption_cast<const QStyleOptionDockWidget *>(request.option);
    if (!title) {
        return false;
    }
    QPainter &painter = *request.painter;
    const bool enabled = isEnabled(*title);
    painter.fillRect(title->rect, themeBrush(BrushName::BackgroundUpLevel1Brush, enabled));
    fillEdge(painter, title->rect, title->verticalTitleBar ? Qt::RightEdge : Qt::BottomEdge,
             cardBorderBrush(enabled));

    QRect textRect =
        request.proxy().subElementRect(QStyle::SE_DockWidgetTitleBarText, title, request.widget);
    if (title->movable && !textRect.isEmpty()) {
        drawTitleGrips(painter, *title, textRect);
        textRect = withoutGrips(*title, textRect);
    }
    if (!title->title.isEmpty() && !textRect.isEmpty()) {
        drawText(request, *title, textRect);
    }
    return true;
}

bool drawResizeHandle(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    const QRect &rect = option.rect;
    const bool isUsed = isEnabled(option) &&
                        (has(option, QStyle::State_MouseOver) || has(option, QStyle::State_Sunken));
    const QBrush &brush = isUsed
                              ? themeBrush(BrushName::MainBrush, true)
                              : themeBrush(BrushName::ForegroundDisabledBrush, isEnabled(option));
    drawDotRow(*request.painter, rect,
               rect.width() >= rect.height() ? Qt::Horizontal : Qt::Vertical, handleDots, brush);
    return true;
}

} // namespace TARN::DockWidgets
