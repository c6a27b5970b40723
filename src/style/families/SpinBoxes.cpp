#include "style/families/SpinBoxes.h"

#include "catalogue/ComposedBrushes.h"
#include "catalogue/Names.h"
#include "style/asking/Backgrounds.h"
#include "style/asking/OptionState.h"
#include "style/brushes/InputBrushes.h"
#include "style/drawing/Icons.h"
#include "style/drawing/Palettes.h"
#include "style/drawing/Shapes.h"

#include <QtGui/QPainter>

namespace TARN::SpinBoxes {

namespace {

/// The icon of an arrow that has enough room.
constexpr int arrowExtent = 16;

// The buttons stand in a column of 14 pixels, 2 away from the edge.
constexpr int buttonsLeft = 15;
constexpr int buttonsRight = 2;

QRect upRect(const QRect &rect)
{
    return {QPoint(rect.width() - buttonsLeft, 0),
            QPoint(rect.width() - buttonsRight, rect.height() / 2 - 1)};
}

QRect downRect(const QRect &rect)
{
    return {QPoint(rect.width() - buttonsLeft, rect.height() / 2),
            QPoint(rect.width() - buttonsRight, rect.bottom() - 1)};
}

QRect editFieldRect(const QRect &rect, bool hasButtons)
{
    const int right = rect.width() - (hasButtons ? buttonsLeft + 1 : 0);
    return {QPoint(1, 1), QPoint(right, rect.height() - 2)};
}

/// One of the two buttons: what it is, and the outer corner of the spin box that it fills.
struct StepButton
{
    QStyle::SubControl subControl;
    QAbstractSpinBox::StepEnabledFlag step;
    QStyle::PrimitiveElement arrow;
    QStyle::PrimitiveElement sign;
    Helpers::StraightCornerFlag leftCorner;
    Helpers::StraightCornerFlag rightCorner;
};

constexpr StepButton stepButtons[] = {
    {QStyle::SC_SpinBoxUp, QAbstractSpinBox::StepUpEnabled, QStyle::PE_IndicatorSpinUp,
     QStyle::PE_IndicatorSpinPlus, Helpers::StraightTopLeft, Helpers::StraightTopRight},
    {QStyle::SC_SpinBoxDown, QAbstractSpinBox::StepDownEnabled, QStyle::PE_IndicatorSpinDown,
     QStyle::PE_IndicatorSpinMinus, Helpers::StraightBottomLeft, Helpers::StraightBottomRight},
};

QPen fieldPen(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    const bool enabled = isEnabled(option);
    if (isInError(request.widget)) {
        return outlinePen(errorBrush(enabled));
    }
    // The ground is the same with and without the focus, so the outline has to show it.
    if (has(option, QStyle::State_HasFocus)) {
        return outlinePen(themeColor(ColorName::MainColor, enabled));
    }
    return outlinePen(themeBrush(BrushName::InputBorderBrush, enabled));
}

void drawField(const PaintRequest &request, bool hasFrame)
{
    const QRect &rect = request.option->rect;
    drawShape(*request.painter, hasFrame ? onHalfPixel(rect) : QRectF(rect),
              cornerRadius(CornerSize::Base), hasFrame ? fieldPen(request) : QPen(Qt::NoPen),
              fieldBrush(isEnabled(*request.option)));
}

/// Returns the state of one button, of which the state of the spin box tells only when it is the
/// active one.
QStyle::State buttonState(const QStyleOptionSpinBox &option, const StepButton &button)
{
    QStyle::State state = option.state & ~QStyle::State_On;
    if (!option.stepEnabled.testFlag(button.step)) {
        state &= ~QStyle::State_Enabled;
    }
    if (!state.testFlag(QStyle::State_Enabled) ||
        !option.activeSubControls.testFlag(button.subControl)) {
        state &= ~(QStyle::State_Sunken | QStyle::State_MouseOver);
    }
    return state;
}

Interaction interactionOf(const QStyleOption &option)
{
    switch (buttonBackground(option)) {
    case ButtonBackground::Checked:
        return Interaction::Pressed;
    case ButtonBackground::Hovered:
        return Interaction::Hover;
    case ButtonBackground::AtRest:
        break;
    }
    return Interaction::None;
}

/// A button at rest is part of the field; it looks like a push button while it is used. The brushes
/// of inputs that are used would hardly be told from the field.
QBrush buttonBrush(Interaction interaction, BrushField field, bool enabled)
{
    const ComposedWidget widget =
        interaction == Interaction::None ? ComposedWidget::Input : ComposedWidget::Button;
    return composedBrush(widget, KindWord(), {CheckState::Unchecked, interaction}, field, enabled);
}

/// Returns the part of the button inside of the outline.
QRect faceRect(const QStyleOptionSpinBox &option, const QRect &button)
{
    const int inset = option.frame ? 1 : 0;
    return button.intersected(option.rect.adjusted(inset, inset, -inset, -inset));
}

/// Fills the face of the button, of which the outer corner follows the outline.
void drawFace(const QStyleOptionSpinBox &option, const StepButton &button, const QRect &face,
              const QBrush &brush, QPainter &painter)
{
    const auto corner = isRightToLeft(option) ? button.leftCorner : button.rightCorner;
    const Helpers::StraightCornerFlags allCorners =
        Helpers::StraightTopLeft | Helpers::StraightTopRight | Helpers::StraightBottomRight |
        Helpers::StraightBottomLeft;
    const int radius = cornerRadius(CornerSize::Base) - (option.frame ? 1 : 0);
    drawShape(painter, face, qMax(0, radius), Qt::NoPen, brush,
              allCorners & ~Helpers::StraightCornerFlags(corner));
}

/// Returns where the plus or the minus stands: a square in the middle, so that its bars are equal.
QRect signRect(const QRect &face)
{
    const int extent = qMin(face.width(), face.height()) & ~1;
    return QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, {extent, extent}, face);
}

/// Who draws the arrows of the buttons.
enum class Arrows { OfBaseStyle, Ours };

/// Returns where the arrow is drawn, in the middle of the face: the base style draws arrows that
/// point down one pixel lower.
QRect arrowRect(const StepButton &button, const QRect &face, Arrows arrows)
{
    const bool isLower =
        arrows == Arrows::OfBaseStyle && button.arrow == QStyle::PE_IndicatorSpinDown;
    return isLower ? face.translated(0, -1) : face;
}

/// Draws the face of a button, which has one while it is used, and its sign or its arrow.
void drawStepButton(const PaintRequest &request, const QStyleOptionSpinBox &option,
                    const StepButton &button, const QRect &face, Arrows arrows)
{
    QStyleOption indicator(option);
    indicator.state = buttonState(option, button);
    const Interaction interaction = interactionOf(indicator);
    const bool enabled = isEnabled(indicator);
    if (interaction != Interaction::None) {
        drawFace(option, button, face, buttonBrush(interaction, BrushField::Background, enabled),
                 *request.painter);
    }
    indicator.palette = paletteWith(indicator.palette, QPalette::ButtonText,
                                    buttonBrush(interaction, BrushField::Foreground, enabled));
    const bool hasSign = option.buttonSymbols == QAbstractSpinBox::PlusMinus;
    indicator.rect = hasSign ? signRect(face) : arrowRect(button, face, arrows);
    if (arrows == Arrows::OfBaseStyle) {
        // They have a straight edge on the pixels, and two whose steps are even.
        request.painter->setRenderHint(QPainter::Antialiasing, false);
    }
    request.draw(hasSign ? button.sign : button.arrow, indicator);
}

/// Draws a button, and nothing beside it: who else draws the arrow may reach over its edge.
void drawClippedStepButton(const PaintRequest &request, const QStyleOptionSpinBox &option,
                           const StepButton &button, Arrows arrows)
{
    const QRect part = request.proxy().subControlRect(QStyle::CC_SpinBox, &option,
                                                      button.subControl, request.widget);
    const QRect face = faceRect(option, part);
    if (face.isEmpty()) {
        return;
    }
    if (arrows == Arrows::Ours && &request.proxy() == &request.style) {
        drawStepButton(request, option, button, face, arrows);
        return;
    }
    request.painter->save();
    request.painter->setClipRect(part, Qt::IntersectClip);
    drawStepButton(request, option, button, face, arrows);
    request.painter->restore();
}

bool paint(const PaintRequest &request, Arrows arrows)
{
    const auto *option = qstyleoption_cast<const QStyleOptionSpinBox *>(request.option);
    if (!option) {
        return false;
    }
    drawField(request, option->frame);
    for (const StepButton &button : stepButtons) {
        if (option->subControls.testFlag(button.subControl) &&
            option->buttonSymbols != QAbstractSpinBox::NoButtons) {
            drawClippedStepButton(request, *option, button, arrows);
        }
    }
    return true;
}

/// Draws an icon that fills the middle half of its square: the room is for what is seen of it.
bool drawArrow(const PaintRequest &request, const char *icon)
{
    const QRect &room = request.option->rect;
    const int extent = qMin(arrowExtent, 2 * qMin(room.width(), room.height()));
    if (extent > 0) {
        drawKeptIcon(
            *request.painter,
            QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, QSize(extent, extent), room),
            icon, request.option->palette.buttonText());
    }
    return true;
}

/// The bars of a plus or a minus.
struct Bars
{
    QRect rect;
    int thickness;
};

Bars signBars(const PaintRequest &request)
{
    const int inset = request.metric(QStyle::PM_DefaultFrameWidth) + 1;
    const QRect rect = request.option->rect.adjusted(inset, inset, -inset, -inset);
    const int extent = qMin(rect.width(), rect.height());
    // Bars of a fifth of the sign are about as bold as text, and stand in the middle only when they
    // are even or odd as the sign is.
    int thickness = qMax(1, qRound(extent / 5.0));
    thickness += (extent - thickness) % 2;
    return {rect, thickness};
}

void drawHorizontalBar(const PaintRequest &request, const Bars &bars)
{
    const int top = bars.rect.top() + (bars.rect.height() - bars.thickness) / 2;
    request.painter->fillRect(QRect(bars.rect.left(), top, bars.rect.width(), bars.thickness),
                              request.option->palette.buttonText());
}

/// Draws the vertical bar in two parts: brushes of what is disabled may be translucent, and would
/// show where the bars cross.
void drawVerticalBar(const PaintRequest &request, const Bars &bars)
{
    const QBrush &brush = request.option->palette.buttonText();
    const int left = bars.rect.left() + (bars.rect.width() - bars.thickness) / 2;
    const int above = (bars.rect.height() - bars.thickness) / 2;
    const int below = bars.rect.height() - bars.thickness - above;
    request.painter->fillRect(QRect(left, bars.rect.top(), bars.thickness, above), brush);
    request.painter->fillRect(
        QRect(left, bars.rect.top() + above + bars.thickness, bars.thickness, below), brush);
}

} // namespace

QRect subControlRect(const SubControlRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionSpinBox *>(request.option);
    if (!option) {
        return request.baseRect();
    }
    const QRect &rect = option->rect;
    const bool hasButtons = option->buttonSymbols != QAbstractSpinBox::NoButtons;
    const auto visual = [option](const QRect &logical) {
        return QStyle::visualRect(option->direction, option->rect, logical);
    };
    if (request.subControl == QStyle::SC_SpinBoxUp && hasButtons) {
        return visual(upRect(rect));
    }
    if (request.subControl == QStyle::SC_SpinBoxDown && hasButtons) {
        return visual(downRect(rect));
    }
    if (request.subControl == QStyle::SC_SpinBoxFrame) {
        return visual(rect);
    }
    if (request.subControl == QStyle::SC_SpinBoxEditField) {
        return visual(editFieldRect(rect, hasButtons));
    }
    return request.baseRect();
}

QSize spinBoxSize(const ContentsRequest &request)
{
    // Fusion makes spin boxes lower than they are under a stylesheet, as which people know them.
    return request.style.QCommonStyle::sizeFromContents(request.type, request.option,
                                                        request.contents, request.widget);
}

bool drawMinus(const PaintRequest &request)
{
    const Bars bars = signBars(request);
    if (!bars.rect.isEmpty()) {
        drawHorizontalBar(request, bars);
    }
    return true;
}

bool drawPlus(const PaintRequest &request)
{
    const Bars bars = signBars(request);
    if (!bars.rect.isEmpty()) {
        drawHorizontalBar(request, bars);
        drawVerticalBar(request, bars);
    }
    return true;
}

bool drawUp(const PaintRequest &request)
{
    return drawArrow(request, "chevron.up.small");
}

bool drawDown(const PaintRequest &request)
{
    return drawArrow(request, "chevron.down.small");
}

bool drawSpinBox(const PaintRequest &request)
{
    return paint(request, Arrows::OfBaseStyle);
}

bool drawSpinBoxWithOwnArrows(const PaintRequest &request)
{
    return paint(request, Arrows::Ours);
}

} // namespace TARN::SpinBoxes
