#include "style/families/ProgressBars.h"

#include "catalogue/Names.h"
#include "style/asking/OptionState.h"
#include "style/brushes/KeptBrushes.h"
#include "style/drawing/Shapes.h"
#include "style/families/BusyAnimation.h"
#include "style/families/tabs/TabSides.h"
#include "style/polishing/Polishing.h"

#include <QtGui/QPainter>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QStyleOption>

namespace TARN::ProgressBars {

namespace {

/// The chunk of a busy bar is a third as long as the bar, and stands in the middle where nothing
/// is to move.
constexpr qreal busyShare = 1.0 / 3;
constexpr qreal restingPosition = 0.5;

/// How opaque the colour of the chunk is where a busy bar has its groove, which tells it from a
/// bar that has not begun.
constexpr int busyTintAlpha = 48;

bool isBusy(const QStyleOptionProgressBar &bar)
{
    return bar.minimum == 0 && bar.maximum == 0;
}

bool isVertical(const QStyleOptionProgressBar &bar)
{
    return bar.orientation == Qt::Vertical;
}

/// Tells whether the bar is filled from the right or from the bottom, which is where vertical bars
/// begin.
bool isReversed(const QStyleOptionProgressBar &bar)
{
    const bool isNaturallyReversed = isVertical(bar) || isRightToLeft(bar);
    return isNaturallyReversed != bar.invertedAppearance;
}

int extent(const QStyleOptionProgressBar &bar)
{
    return isVertical(bar) ? bar.rect.height() : bar.rect.width();
}

/// Returns the part of the bar that begins \a from pixels after its start and is \a length long.
QRect partOf(const QStyleOptionProgressBar &bar, int from, int length)
{
    const int offset = isReversed(bar) ? extent(bar) - from - length : from;
    const QRect &rect = bar.rect;
    return isVertical(bar) ? QRect(rect.left(), rect.top() + offset, rect.width(), length)
                           : QRect(rect.left() + offset, rect.top(), length, rect.height());
}

/// Returns the share of the bar that is filled.
double filledShare(const QStyleOptionProgressBar &bar)
{
    if (isBusy(bar) || bar.progress < bar.minimum) {
        return 0;
    }
    if (bar.progress >= bar.maximum) {
        return 1;
    }
    return (double(bar.progress) - bar.minimum) / (double(bar.maximum) - bar.minimum);
}

/// Returns how many pixels of the bar are filled. Between the lines at its ends, what has begun is
/// never seen as nothing, and what is not finished never as everything.
int filledLength(const QStyleOptionProgressBar &bar)
{
    const int full = qMax(0, extent(bar));
    const double share = filledShare(bar);
    if (share <= 0 || share >= 1) {
        return share <= 0 ? 0 : full;
    }
    const int inner = full - 2;
    return inner < 2 ? int(share * full) : 1 + qBound(1, int(share * inner), inner - 1);
}

/// Applications mark a bar, say that of a failed task, by the highlight of its own palette.
QBrush chunkBrush(const QStyleOptionProgressBar &bar)
{
    const bool enabled = isEnabled(bar);
    const QPalette &palette = bar.palette;
    const bool isOwn =
        palette.isBrushSet(palette.currentColorGroup(), QPalette::Highlight) &&
        palette.color(QPalette::Highlight) != themeColor(ColorName::MainColor, enabled);
    return isOwn ? palette.brush(QPalette::Highlight) : themeBrush(BrushName::MainBrush, enabled);
}

/// Fills what lies in \a part of the rounded shape of the whole bar, so that no part of whatever
/// length sticks out at the corners.
void fillPart(QPainter &painter, const QStyleOptionProgressBar &bar, const QRect &part,
              const QBrush &brush)
{
    const QPen pen = outlinePen(cardBorderBrush(isEnabled(bar)));
    const int radius = cornerRadius(CornerSize::Base);
    if (part == bar.rect) {
        drawShape(painter, onHalfPixel(bar.rect), radius, pen, brush);
        return;
    }
    painter.save();
    painter.setClipRect(part, Qt::IntersectClip);
    drawShape(painter, onHalfPixel(bar.rect), radius, pen, brush);
    painter.restore();
}

bool isAnimated(const PaintRequest &request)
{
    const QStyle &proxy = request.proxy();
    return proxy.styleHint(QStyle::SH_Widget_Animate, request.option, request.widget) != 0 &&
           proxy.styleHint(QStyle::SH_Widget_Animation_Duration, request.option, request.widget) >
               0;
}

/// Returns how far the chunk of a busy bar has got. Only what is on the screen moves.
qreal busyPosition(const PaintRequest &request)
{
    auto *bar = qobject_cast<QProgressBar *>(request.option->styleObject);
    if (!bar || bar != request.widget || !bar->isVisible() || !isAnimated(request)) {
        return restingPosition;
    }
    return BusyAnimation::painted(*bar).position();
}

void drawBusy(const PaintRequest &request, const QStyleOptionProgressBar &bar)
{
    const QBrush brush = chunkBrush(bar);
    QColor tint = brush.style() == Qt::SolidPattern
                      ? brush.color()
                      : themeColor(ColorName::MainColor, isEnabled(bar));
    tint.setAlpha(busyTintAlpha);
    fillPart(*request.painter, bar, bar.rect, tint);
    const int full = extent(bar);
    const int length = qMin(full, qMax(1, int(busyShare * full)));
    const int from = qRound(busyPosition(request) * (full - length));
    fillPart(*request.painter, bar, partOf(bar, from, length), brush);
}

/// Draws the text where it lies in \a part of the bar.
void drawTextIn(const PaintRequest &request, const QStyleOptionProgressBar &bar, const QRect &part,
                QPalette::ColorRole role)
{
    if (part.isEmpty()) {
        return;
    }
    QPainter &painter = *request.painter;
    QRect rect = bar.rect;
    painter.save();
    painter.setClipRect(part, Qt::IntersectClip);
    if (isVertical(bar)) {
        rect = QRect(0, 0, bar.rect.height(), bar.rect.width());
        painter.translate(bar.bottomToTop ? QPoint(bar.rect.left(), bar.rect.bottom() + 1)
                                          : QPoint(bar.rect.right() + 1, bar.rect.top()));
        painter.rotate(bar.bottomToTop ? -90.0 : 90.0);
    }
    request.proxy().drawItemText(&painter, rect, Qt::AlignCenter | Qt::TextSingleLine, bar.palette,
                                 isEnabled(bar), bar.text, role);
    painter.restore();
}

} // namespace

QSize progressBarSize(const ContentsRequest &request)
{
    const QSize size = request.baseSize();
    const auto *option = qstyleoption_cast<const QStyleOptionProgressBar *>(request.option);
    if (!option) {
        return size;
    }
    // The text has 2 pixels at either side of it.
    const int thickness = option->fontMetrics.height() + 4;
    return size.expandedTo(option->orientation == Qt::Vertical ? QSize(thickness, 0)
                                                               : QSize(0, thickness));
}

void polish(Polishing &polishing)
{
    auto &bar = static_cast<QProgressBar &>(polishing.widget());
    const QProgressBar::Direction former = bar.textDirection();
    bar.setTextDirection(QProgressBar::BottomToTop);
    polishing.addUndo([&bar, former] { bar.setTextDirection(former); });
}

bool drawGroove(const PaintRequest &request)
{
    const auto *bar = qstyleoption_cast<const QStyleOptionProgressBar *>(request.option);
    if (!bar) {
        return false;
    }
    const bool enabled = isEnabled(*bar);
    drawShape(*request.painter, onHalfPixel(bar->rect), cornerRadius(CornerSize::Base),
              outlinePen(cardBorderBrush(enabled)), grooveBrush(enabled));
    return true;
}

bool drawChunk(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    const auto *bar = qstyleoption_cast<const QStyleOptionProgressBar *>(&option);
    const bool enabled = isEnabled(option);
    drawShape(*request.painter, onHalfPixel(option.rect), cornerRadius(CornerSize::Base),
              outlinePen(cardBorderBrush(enabled)),
              bar ? chunkBrush(*bar) : themeBrush(BrushName::MainBrush, enabled));
    return true;
}

bool drawContents(const PaintRequest &request)
{
    const auto *bar = qstyleoption_cast<const QStyleOptionProgressBar *>(request.option);
    if (!bar) {
        return false;
    }
    if (isBusy(*bar)) {
        drawBusy(request, *bar);
    } else if (const int length = filledLength(*bar); length > 0) {
        fillPart(*request.painter, *bar, partOf(*bar, 0, length), chunkBrush(*bar));
    }
    return true;
}

bool drawLabel(const PaintRequest &request)
{
    const auto *bar = qstyleoption_cast<const QStyleOptionProgressBar *>(request.option);
    if (!bar) {
        return false;
    }
    if (!bar->text.isEmpty()) {
        const int filled = filledLength(*bar);
        drawTextIn(request, *bar, partOf(*bar, 0, filled), QPalette::HighlightedText);
        drawTextIn(request, *bar, partOf(*bar, filled, extent(*bar) - filled), QPalette::Text);
    }
    return true;
}

} // namespace TARN::ProgressBars
