#include "style/families/Dials.h"

#include "catalogue/Names.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/brushes/KeptBrushes.h"
#include "style/drawing/Focus.h"
#include "style/drawing/Shapes.h"
#include "style/families/SliderParts.h"

#include <QtCore/QLineF>
#include <QtCore/QVarLengthArray>
#include <QtCore/QtMath>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractSlider>
#include <QtWidgets/QStyleOption>

namespace TARN::Dials {

namespace {

// A dial turns clockwise in every language: that is how the toolkit reads the mouse.
// Angles are in degrees, counter-clockwise from three o'clock.
constexpr qreal openStart = 240;
constexpr qreal openSweep = 300;
constexpr qreal wrappingStart = 270;
constexpr qreal wrappingSweep = 360;

/// What has no room for a circle within is no dial; nothing on a screen is larger than the other.
constexpr int leastSide = 20;
constexpr int greatestSide = 4096;
/// Smaller dials have no room for notches.
constexpr int leastSideWithNotches = 40;
/// Keeps the dial clear of the line that shows the focus.
constexpr int margin = 2;
/// The handle takes this share of the dial, unless that were too small to be seen.
constexpr int handleShare = 6;
constexpr int leastHandleExtent = 8;

/// What all parts of one dial are drawn from.
struct Look
{
    const PaintRequest &request;
    const QStyleOptionSlider &option;
    QPointF center;
    int handleExtent;
    qreal grooveWidth;
    qreal radius;      ///< of the circle on which the handle moves
    qreal outerRadius; ///< up to which notches reach
    bool hasNotches;
};

Look lookOf(const PaintRequest &request, const QStyleOptionSlider &option)
{
    const QRect &rect = option.rect;
    // An odd one, whose middle is that of a pixel: upright and lying notches are crisp.
    const int side = (qMin(greatestSide, qMin(rect.width(), rect.height())) - 1) | 1;
    const bool hasNotches =
        option.subControls.testFlag(QStyle::SC_DialTickmarks) && side >= leastSideWithNotches;
    const int handle =
        qMin(request.metric(QStyle::PM_SliderLength), qMax(leastHandleExtent, side / handleShare));
    const int groove = qMin(request.metric(QStyle::PM_SliderThickness) / 2 - 2, handle / 2);
    const qreal outer = side / 2.0 - margin;
    const int notchRoom = hasNotches ? request.metric(QStyle::PM_SliderTickmarkOffset) : 0;
    return {request, option,        QPointF(rect.center()) + QPointF(0.5, 0.5),
            handle,  qreal(groove), outer - notchRoom - handle / 2.0,
            outer,   hasNotches};
}

/// Returns how far the dial is turned where its handle is at \a position, as a share of all.
qreal shareOf(const QStyleOptionSlider &option, qreal position)
{
    const qreal range = qreal(option.maximum) - option.minimum;
    return range > 0 ? qBound(0.0, (position - option.minimum) / range, 1.0) : 0.5;
}

qreal currentShare(const QStyleOptionSlider &option)
{
    const qreal position = option.sliderPosition;
    return shareOf(option, option.upsideDown ? position : option.maximum - position);
}

qreal angleOf(const QStyleOptionSlider &option, qreal share)
{
    return option.dialWrapping ? wrappingStart - wrappingSweep * share
                               : openStart - openSweep * share;
}

QPointF pointAt(const Look &look, qreal angle, qreal radius)
{
    const qreal radians = qDegreesToRadians(angle);
    return look.center + QPointF(radius * qCos(radians), -radius * qSin(radians));
}

/// Draws the part of the groove between two shares of the way.
void drawArc(const Look &look, const QBrush &brush, qreal from, qreal to)
{
    constexpr int unitsPerDegree = 16;
    QPainter &painter = *look.request.painter;
    const QRectF circle(look.center - QPointF(look.radius, look.radius),
                        QSizeF(2 * look.radius, 2 * look.radius));
    const qreal start = angleOf(look.option, from);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(brush, look.grooveWidth, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(circle, qRound(start * unitsPerDegree),
                    qRound((angleOf(look.option, to) - start) * unitsPerDegree));
}

/// A disabled dial would not be seen in the paler of the two.
BrushName filledBrush(const PaintRequest &request)
{
    const bool isHighlighted =
        !isEnabled(*request.option) || isSet(request.widget, Property::SliderHighlighted);
    return isHighlighted ? BrushName::MainBrush : BrushName::MainSubLevel1Brush;
}

/// Draws the groove. It is filled up to the handle, unless the dial goes round and round and has
/// no beginning.
void drawGroove(const Look &look)
{
    const QStyleOptionSlider &option = look.option;
    const bool enabled = isEnabled(option);
    drawArc(look, grooveBrush(enabled), 0, 1);
    if (option.dialWrapping) {
        return;
    }
    drawArc(look, themeBrush(filledBrush(look.request), enabled), option.upsideDown ? 0 : 1,
            currentShare(option));
}

void drawNotches(const Look &look)
{
    const QStyleOptionSlider &option = look.option;
    const qreal sweep = option.dialWrapping ? wrappingSweep : openSweep;
    const int length = int(qDegreesToRadians(sweep) * look.radius);
    const qint64 range = qint64(option.maximum) - option.minimum;
    const qint64 interval = Sliders::sparseInterval(
        option.tickInterval > 0 ? option.tickInterval : option.pageStep, range, length);
    const qreal inner = look.radius + look.handleExtent / 2.0 + Sliders::tickGap;
    QVarLengthArray<QLineF, 64> notches;
    for (qint64 step = 0; step <= range; step += interval) {
        // The last one of a dial that goes round and round is where the first one is.
        if (option.dialWrapping && step == range && step > 0) {
            break;
        }
        const qreal angle = angleOf(option, shareOf(option, qreal(option.minimum) + step));
        notches.append({pointAt(look, angle, inner), pointAt(look, angle, look.outerRadius)});
    }
    QPainter &painter = *look.request.painter;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(themeBrush(BrushName::InputForegroundBrush, isEnabled(option)), 1,
                        Qt::SolidLine, Qt::FlatCap));
    painter.drawLines(notches.constData(), notches.size());
}

/// The toolkit tells of a pressed slider, but not of a pressed dial.
bool isPressed(const PaintRequest &request)
{
    const auto *dial = qobject_cast<const QAbstractSlider *>(request.widget);
    return has(*request.option, QStyle::State_Sunken) || (dial && dial->isSliderDown());
}

void drawHandle(const Look &look)
{
    const QPointF middle =
        pointAt(look, angleOf(look.option, currentShare(look.option)), look.radius);
    const QSizeF size(look.handleExtent, look.handleExtent);
    const QRectF handle(middle - QPointF(size.width(), size.height()) / 2, size);
    drawShape(*look.request.painter, handle, look.handleExtent, Qt::NoPen,
              Sliders::handleBrush(isEnabled(look.option), isPressed(look.request),
                                   isHovered(look.option)));
}

} // namespace

bool drawDial(const PaintRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionSlider *>(request.option);
    if (!option) {
        return false;
    }
    if (qMin(option->rect.width(), option->rect.height()) < leastSide) {
        return true;
    }
    const Look look = lookOf(request, *option);
    if (option->subControls.testFlag(QStyle::SC_DialGroove)) {
        drawGroove(look);
    }
    if (look.hasNotches) {
        drawNotches(look);
    }
    if (option->subControls.testFlag(QStyle::SC_DialHandle)) {
        drawHandle(look);
    }
    if (has(*option, QStyle::State_HasFocus)) {
        drawFocusRect(request, option->rect);
    }
    return true;
}

} // namespace TARN::Dials
