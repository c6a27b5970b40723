#include "style/families/menus/MenuParts.h"

#include "catalogue/Names.h"
#include "style/asking/OptionState.h"
#include "style/drawing/Lines.h"
#include "style/drawing/Marks.h"
#include "style/families/menus/MenuSurfaces.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

namespace TARN::Menus {

namespace {

/// How far the line of a tear-off stays away from the edges, as the texts of entries do.
constexpr int edge = 5;
/// A tick that is smaller has no shape.
constexpr int leastMarkExtent = 10;

void drawGround(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    if (isHighlighted(option)) {
        request.painter->fillRect(option.rect, themeColor(ColorName::MainColor, true));
    } else {
        request.painter->fillRect(option.rect, themeBrush(BrushName::BackgroundSubLevel1Brush,
                                                          isSurfaceEnabled(request)));
    }
    drawCoveredOutline(request);
}

} // namespace

bool drawScroller(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    if (!option.rect.isValid()) {
        return true;
    }
    drawGround(request);
    QStyleOptionMenuItem arrow;
    arrow.QStyleOption::operator=(option);
    arrow.palette.setBrush(QPalette::WindowText, textBrush(option));
    request.draw(has(option, QStyle::State_DownArrow) ? QStyle::PE_IndicatorArrowDown
                                                      : QStyle::PE_IndicatorArrowUp,
                 arrow);
    return true;
}

bool drawTearOff(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    if (option.rect.isValid()) {
        drawGround(request);
        drawDashes(*request.painter, option.rect.adjusted(edge, 0, -edge, 0), Qt::Horizontal,
                   textBrush(option));
    }
    return true;
}

bool drawEmptyArea(const PaintRequest &request)
{
    if (request.option->rect.isValid()) {
        drawGround(request);
    }
    return true;
}

bool drawCheckMark(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    const int extent = qMin(request.metric(QStyle::PM_IndicatorWidth),
                            qMin(option.rect.width(), option.rect.height()));
    if (extent >= leastMarkExtent) {
        TARN::drawCheckMark(*request.painter,
                            QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter,
                                                QSize(extent, extent), option.rect),
                            textBrush(option));
    }
    return true;
}

} // namespace TARN::Menus
