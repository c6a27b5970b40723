#include "style/families/Dials.h"

#include "catalogue/Names.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/brushes/KeptBrushes.h"
#include "style/drawing/Focus.h"
#include "style/drawing/Shapes.h"
#include "style/families/DialFaces.h"
#include "style/families/SliderParts.h"

#include <QtCore/QtMath>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractSlider>
#include <QtWidgets/QStyleOption>

namespace TARN::Dials {

namespace {

/// What has no room for a circle within is no dial; nothing on a screen is larger than the other.
constexpr int leastSide = 20;
constexpr int greatestSide = 4096;
/// Smaller dials have no room for notches.
constexpr int leastSideWithNotches = 40;
/// The handle takes this share of the dial, unless that were too small to be seen.
constexpr int handleShare = 6;
constexpr int leastHandleExtent = 8;

/// Returns the middle of a dial, which is that of a pixel: upright and lying notches are crisp.
QPointF centerOf(const QStyleOption &option)
{
    return QPointF(option.rect.center()) + QPointF(0.5, 0.5);
}

int sideOf(const QStyleOption &option)
{
    return (qMin(greatestSide, qMin(option.rect.width(), option.rect.height())) - 1) | 1;
}

/// Returns how far the dial is turned, as a share of all.
qreal currentShare(const QStyleOptionSlider &option)
{
    const qreal range = qreal(option.maximum) - option.minimum;
    const qreal position = option.upsideDown ? qreal(option.sliderPosition)
                                             : qreal(option.maximum) - option.sliderPosition;
    return range > 0 ? qBound(0.0, (position - option.minimum) / range, 1.0) : 0.5;
}

FaceShape shapeOf(const PaintRequest &request, const QStyleOptionSlider &option)
{
    FaceShape shape;
    shape.side = sideOf(option);
    shape.handleExtent = qMin(request.metric(QStyle::PM_SliderLength),
                              qMax(leastHandleExtent, shape.side / handleShare));
    shape.grooveWidth =
        qMin(request.metric(QStyle::PM_SliderThickness) / 2 - 2, shape.handleExtent / 2);
    shape.isWrapping = option.dialWrapping;
    const bool hasNotches =
        option.subControls.testFlag(QStyle::SC_DialTickmarks) && shape.side >= leastSideWithNotches;
    shape.notchRoom = hasNotches ? request.metric(QStyle::PM_SliderTickmarkOffset) : 0;
    return shape;
}

/// A disabled dial would not be seen in the paler of the two.
BrushName filledBrush(const PaintRequest &request)
{
    const bool isHighlighted =
        !isEnabled(*request.option) || isSet(request.widget, Property::SliderHighlighted);
    return isHighlighted ? BrushName::MainBrush : BrushName::MainSubLevel1Brush;
}

/// Returns the face with its groove, unless that is not asked for. It is filled up to the handle;
/// a dial that goes round and round has no beginning from which it were.
Face faceOf(const PaintRequest &request, const QStyleOptionSlider &option)
{
    const bool enabled = isEnabled(option);
    Face face;
    face.shape = shapeOf(request, option);
    if (option.subControls.testFlag(QStyle::SC_DialGroove)) {
        face.groove = grooveBrush(enabled);
        if (!option.dialWrapping) {
            face.filled = themeBrush(filledBrush(request), enabled);
            face.filledFrom = option.upsideDown ? 0 : 1;
            face.filledTo = currentShare(option);
        }
    }
    if (face.shape.notchRoom > 0) {
        face.notches = themeBrush(BrushName::InputForegroundBrush, enabled);
        face.range = qint64(option.maximum) - option.minimum;
        face.interval =
            Sliders::sparseInterval(option.tickInterval > 0 ? option.tickInterval : option.pageStep,
                                    face.range, grooveLength(face.shape));
    }
    return face;
}

/// The toolkit tells of a pressed slider, but not of a pressed dial.
bool isPressed(const PaintRequest &request)
{
    const auto *dial = qobject_cast<const QAbstractSlider *>(request.widget);
    return has(*request.option, QStyle::State_Sunken) || (dial && dial->isSliderDown());
}

void drawHandle(const PaintRequest &request, const QStyleOptionSlider &option,
                const FaceShape &shape)
{
    const QPointF middle = handlePosition(shape, centerOf(option), currentShare(option));
    const QSizeF size(shape.handleExtent, shape.handleExtent);
    const QRectF handle(middle - QPointF(size.width(), size.height()) / 2, size);
    drawShape(*request.painter, handle, shape.handleExtent, Qt::NoPen,
              Sliders::handleBrush(isEnabled(option), isPressed(request), isHovered(option)));
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
    const Face face = faceOf(request, *option);
    drawFace(*request.painter, centerOf(*option), face);
    if (option->subControls.testFlag(QStyle::SC_DialHandle)) {
        drawHandle(request, *option, face.shape);
    }
    if (has(*option, QStyle::State_HasFocus)) {
        drawFocusRect(request, option->rect);
    }
    return true;
}

} // namespace TARN::Dials
