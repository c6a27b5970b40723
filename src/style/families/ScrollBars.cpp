#include "style/families/ScrollBars.h"

#include "catalogue/Names.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/brushes/ButtonBrushChoice.h"
#include "style/brushes/KeptBrushes.h"
#include "style/brushes/LabelBrushes.h"
#include "style/drawing/Focus.h"
#include "style/drawing/Icons.h"
#include "style/drawing/Shapes.h"

#include <QtGui/QPainter>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QStyleOption>

namespace TARN::ScrollBars {

namespace {

constexpr int minimizedThickness = 5;

/// How much of its thickness the handle keeps free at either side.
constexpr qreal handleMargin = 0.2;

/// The face of a button keeps this distance from the edges of the scroll bar.
constexpr int faceMargin = 2;

struct Part
{
    QStyle::SubControl subControl;
    QStyle::ControlElement element;
};

/// The pages are bare groove.
constexpr Part parts[] = {
    {QStyle::SC_ScrollBarSubLine, QStyle::CE_ScrollBarSubLine},
    {QStyle::SC_ScrollBarAddLine, QStyle::CE_ScrollBarAddLine},
    {QStyle::SC_ScrollBarSlider, QStyle::CE_ScrollBarSlider},
};

const QStyleOptionSlider *minimizedOption(const QStyleOption *option, const QWidget *widget)
{
    return isSet(widget, Property::Minimized)
               ? qstyleoption_cast<const QStyleOptionSlider *>(option)
               : nullptr;
}

int scrollAreaFrameWidth(const QWidget *widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (const auto *area = qobject_cast<const QAbstractScrollArea *>(widget)) {
            return area->frameWidth();
        }
    }
    return 0;
}

/// The base style leaves room for buttons at both ends, which the slider takes.
QRect minimizedSliderRect(const SubControlRequest &request, Qt::Orientation orientation)
{
    const bool isTransient = request.proxy().styleHint(QStyle::SH_ScrollBar_Transient,
                                                       request.option, request.widget) != 0;
    const int extent = isTransient ? 0 : request.metric(QStyle::PM_ScrollBarExtent);
    const int frameWidth = scrollAreaFrameWidth(request.widget->parentWidget());
    const int growth = extent + frameWidth - 1;
    const QRect rect = request.baseRect();
    return orientation == Qt::Horizontal ? rect.adjusted(-growth, 0, growth, frameWidth)
                                         : rect.adjusted(frameWidth, -growth, 0, growth);
}

/// A thin line that lies on the contents of its scroll area is a handle without a groove. One that
/// has promised to paint all of its pixels has to keep that.
bool hasGroove(const QWidget *widget)
{
    return !isSet(widget, Property::Minimized) || widget->testAttribute(Qt::WA_OpaquePaintEvent) ||
           !qobject_cast<const QAbstractScrollArea *>(widget->parentWidget());
}

void fillGroove(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    // The painter would fill what an inverted rectangle encloses.
    if (option.rect.isValid()) {
        request.painter->fillRect(option.rect, grooveBrush(isEnabled(option)));
    }
}

QStyle::State stateOf(const QStyleOptionSlider &scrollBar, QStyle::SubControl subControl)
{
    return scrollBar.activeSubControls.testFlag(subControl)
               ? scrollBar.state
               : scrollBar.state & ~(QStyle::State_Sunken | QStyle::State_MouseOver);
}

QBrush handleBrush(const QStyleOptionSlider &option, const QWidget *widget)
{
    // What is dragged is under the mouse, wherever the mouse has got to.
    const bool isUnderMouse =
        isHovered(option) || (isEnabled(option) && has(option, QStyle::State_Sunken));
    if (isUnderMouse) {
        return themeColor(ColorName::MainColor, true);
    }
    return themeBrush(isSet(widget, Property::Minimized)
                          ? BrushName::PrioritySecondarySubLevel1Brush
                          : BrushName::ForegroundDisabledBrush,
                      isEnabled(option));
}

bool isHorizontal(const QStyleOption &option)
{
    const auto *scrollBar = qstyleoption_cast<const QStyleOptionSlider *>(&option);
    return scrollBar ? scrollBar->orientation == Qt::Horizontal
                     : has(option, QStyle::State_Horizontal);
}

QStyle::PrimitiveElement lineArrow(const QStyleOption &option, bool isTowardsEnd)
{
    if (!isHorizontal(option)) {
        return isTowardsEnd ? QStyle::PE_IndicatorArrowDown : QStyle::PE_IndicatorArrowUp;
    }
    return isTowardsEnd != isRightToLeft(option) ? QStyle::PE_IndicatorArrowRight
                                                 : QStyle::PE_IndicatorArrowLeft;
}

/// Returns the icon of a button that leads to one end of the scroll bar.
const char *endIcon(const QStyleOption &option, bool isTowardsEnd)
{
    if (!isHorizontal(option)) {
        return isTowardsEnd ? "chevron.double.down" : "chevron.double.up";
    }
    return isTowardsEnd != isRightToLeft(option) ? "chevron.double.right" : "chevron.double.left";
}

/// Draws the face of a button. It has one only while the mouse is on it: a scroll bar at rest is
/// calm.
void drawFace(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    if (isHovered(option) || has(option, QStyle::State_Sunken)) {
        const QRectF face =
            QRectF(option.rect).adjusted(faceMargin, faceMargin, -faceMargin, -faceMargin);
        drawShape(*request.painter, face, cornerRadius(CornerSize::Base), Qt::NoPen,
                  buttonBrushes(&option, request.widget).background);
    }
}

/// Draws a button at an end of the scroll bar.
bool drawLine(const PaintRequest &request, bool isTowardsEnd)
{
    const QStyleOption &option = *request.option;
    drawFace(request);
    request.proxy().drawPrimitive(lineArrow(option, isTowardsEnd), &option, request.painter,
                                  request.widget);
    return true;
}

/// Draws a button that leads to one end at once.
bool drawEnd(const PaintRequest &request, bool isTowardsEnd)
{
    const QStyleOption &option = *request.option;
    const int extent = qMin(request.metric(QStyle::PM_ScrollBarExtent),
                            qMin(option.rect.width(), option.rect.height()));
    if (extent <= 0) {
        return true;
    }
    drawFace(request);
    drawTintedIcon(
        *request.painter,
        QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, QSize(extent, extent), option.rect),
        keptIcon(endIcon(option, isTowardsEnd)),
        labelBrush(buttonBrushes(&option, request.widget).foreground, isEnabled(option)));
    return true;
}

} // namespace

QRect subControlRect(const SubControlRequest &request)
{
    const QStyleOptionSlider *option = minimizedOption(request.option, request.widget);
    if (!option) {
        return request.baseRect();
    }
    switch (request.subControl) {
    case QStyle::SC_ScrollBarAddLine:
    case QStyle::SC_ScrollBarSubLine:
    case QStyle::SC_ScrollBarAddPage:
    case QStyle::SC_ScrollBarSubPage:
        return {};
    case QStyle::SC_ScrollBarGroove:
        return option->rect;
    case QStyle::SC_ScrollBarSlider:
        return minimizedSliderRect(request, option->orientation);
    default:
        return request.baseRect();
    }
}

QSize scrollBarSize(const ContentsRequest &request)
{
    QSize size = request.baseSize();
    if (const QStyleOptionSlider *option = minimizedOption(request.option, request.widget)) {
        (option->orientation == Qt::Horizontal ? size.rheight() : size.rwidth()) =
            minimizedThickness;
    }
    return size;
}

bool drawCorner(const PaintRequest &request)
{
    fillGroove(request);
    return true;
}

bool drawPage(const PaintRequest &request)
{
    fillGroove(request);
    return true;
}

bool drawFirst(const PaintRequest &request)
{
    return drawEnd(request, false);
}

bool drawLast(const PaintRequest &request)
{
    return drawEnd(request, true);
}

bool drawAddLine(const PaintRequest &request)
{
    return drawLine(request, true);
}

bool drawSubLine(const PaintRequest &request)
{
    return drawLine(request, false);
}

bool drawHandle(const PaintRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionSlider *>(request.option);
    if (!option) {
        return false;
    }
    const QRect &rect = option->rect;
    const int thickness = option->orientation == Qt::Horizontal ? rect.height() : rect.width();
    // Rounded to whole pixels, the long edges of the handle stay sharp.
    const int margin = qRound(handleMargin * thickness);
    const int radius = (thickness - 2 * margin + 1) / 2;
    drawShape(*request.painter, QRectF(rect.adjusted(margin, margin, -margin, -margin)), radius,
              Qt::NoPen, handleBrush(*option, request.widget));
    return true;
}

bool drawScrollBar(const PaintRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionSlider *>(request.option);
    if (!option) {
        return false;
    }
    if (hasGroove(request.widget)) {
        fillGroove(request);
    }
    QStyleOptionSlider part = *option;
    for (const Part &row : parts) {
        if (!option->subControls.testFlag(row.subControl)) {
            continue;
        }
        part.rect = request.proxy().subControlRect(QStyle::CC_ScrollBar, option, row.subControl,
                                                   request.widget);
        part.state = stateOf(*option, row.subControl);
        if (part.rect.isValid()) {
            request.draw(row.element, part);
        }
    }
    if (has(*option, QStyle::State_HasFocus)) {
        drawFocusRect(request, option->rect);
    }
    return true;
}

} // namespace TARN::ScrollBars
