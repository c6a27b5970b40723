#include "style/families/Inputs.h"

#include "catalogue/Names.h"
#include "style/asking/Classes.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/brushes/ButtonBrushChoice.h"
#include "style/brushes/InputBrushes.h"
#include "style/brushes/KeptBrushes.h"
#include "style/drawing/Shapes.h"
#include "style/families/buttons/PushButtons.h"
#include "style/polishing/Polishing.h"
#include "style/watching/ButtonIcons.h"

#include <QtGui/QPainter>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QTextEdit>

namespace TARN::Inputs {

namespace {

/// Set in the option of a frame that lies on a panel: the panel is its ground. A translucent ground
/// that was painted twice would look like another brush, and the panel's says whether the input has
/// the focus.
constexpr auto liesOnPanel = QStyleOptionFrame::Flat;

bool isTextEdit(const QWidget *widget)
{
    return qobject_cast<const QTextEdit *>(widget) || qobject_cast<const QPlainTextEdit *>(widget);
}

QPen framePen(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    if (isInError(request.widget)) {
        return outlinePen(errorBrush(isEnabled(option)));
    }
    if (has(option, QStyle::State_HasFocus)) {
        return outlinePen(themeBrush(BrushName::InputBorderActiveBrush, isEnabled(option)));
    }
    return outlinePen(themeBrush(BrushName::InputBorderBrush, isEnabled(option)));
}

QBrush frameGround(const PaintRequest &request)
{
    const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(request.option);
    if (frame && frame->features.testFlag(liesOnPanel)) {
        return Qt::NoBrush;
    }
    // A combo box whose list is open looks like that whether it can be edited or not.
    const bool isListOpen = has(*request.option, QStyle::State_On);
    if (isListOpen && qobject_cast<const QComboBox *>(request.widget)) {
        return buttonBrushes(request.option, request.widget).background;
    }
    return fieldBrush(isEnabled(*request.option));
}

/// Returns what the error mark has to itself: the arrow of a combo box stands beside it.
QRect errorMarkArea(const PaintRequest &request)
{
    const auto *comboBox = qstyleoption_cast<const QStyleOptionComboBox *>(request.option);
    return comboBox ? request.proxy().subControlRect(QStyle::CC_ComboBox, comboBox,
                                                     QStyle::SC_ComboBoxEditField, request.widget)
                    : request.option->rect;
}

void drawErrorMark(const PaintRequest &request)
{
    QPainter &painter = *request.painter;
    const Qt::LayoutDirection direction = painter.layoutDirection();
    painter.setLayoutDirection(request.option->direction);
    Helpers::drawInputStatusIndicator(
        errorMarkArea(request), cornerRadius(CornerSize::Base),
        themeColor(ColorName::StatusDangerColor, isEnabled(*request.option)), &painter);
    painter.setLayoutDirection(direction);
}

/// Tells whether \a widget is the editor of something that looks like a combo box, which paints the
/// ground of its editor itself.
bool isComboBoxEditor(const QWidget *widget)
{
    const QWidget *parent = widget ? widget->parentWidget() : nullptr;
    if (const auto *edit = qobject_cast<const QDateTimeEdit *>(parent)) {
        return edit->calendarPopup() &&
               (edit->displayedSections() & QDateTimeEdit::DateSections_Mask);
    }
    return qobject_cast<const QComboBox *>(parent);
}

/// Draws the ground of the editor of \a spinBox, the same as that of the spin box: it shows that it
/// has the focus by its outline.
void drawSpinBoxPanel(const PaintRequest &request, const QAbstractSpinBox &spinBox)
{
    const QStyleOption &option = *request.option;
    const QBrush ground = fieldBrush(isEnabled(option));
    if (!ground.isOpaque()) {
        return;
    }
    QRectF rect(option.rect);
    if (spinBox.buttonSymbols() == QAbstractSpinBox::NoButtons) {
        // The editor without buttons beside it reaches over the outline of the spin box.
        constexpr qreal excess = 2.0;
        rect = isRightToLeft(option) ? rect.adjusted(excess, 0, 0, 0)
                                     : rect.adjusted(0, 0, -excess, 0);
    }
    drawShape(*request.painter, rect, cornerRadius(CornerSize::Base), Qt::NoPen, ground);
}

void drawOwnPanel(const PaintRequest &request, bool hasFrame)
{
    const QStyleOption &option = *request.option;
    const bool enabled = isEnabled(option);
    const bool isActive =
        has(option, QStyle::State_HasFocus) && !has(option, QStyle::State_ReadOnly);
    const QBrush ground =
        isActive ? themeBrush(BrushName::InputBackgroundActiveBrush, enabled) : fieldBrush(enabled);
    // Below a frame the ground ends in the middle of the outline, whose corners it would outgrow.
    const QRectF rect = hasFrame ? onHalfPixel(option.rect) : QRectF(option.rect);
    drawShape(*request.painter, rect, cornerRadius(CornerSize::Base), Qt::NoPen, ground);
}

void drawPanel(const PaintRequest &request, bool hasFrame)
{
    // The ground of a combo box changes with the mouse on its arrow, which its editor cannot know.
    if (isComboBoxEditor(request.widget)) {
        return;
    }
    const QWidget *parent = request.widget ? request.widget->parentWidget() : nullptr;
    if (const auto *spinBox = qobject_cast<const QAbstractSpinBox *>(parent)) {
        drawSpinBoxPanel(request, *spinBox);
    } else {
        drawOwnPanel(request, hasFrame);
    }
}

} // namespace

QSize lineEditSize(const ContentsRequest &request)
{
    return {request.baseSize().width(), Buttons::pushButtonHeight(request)};
}

QSize lineEditSizeInside(const ContentsRequest &request)
{
    const QWidget *parent = request.widget ? request.widget->parentWidget() : nullptr;
    const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(request.option);
    const bool isFrameless = frame && frame->lineWidth <= 0;
    return isFrameless || qobject_cast<const QAbstractSpinBox *>(parent) ? request.contents
                                                                         : lineEditSize(request);
}

void polishClearButton(Polishing &polishing)
{
    tintOnPaint(polishing);
}

bool drawFrame(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    if (isTextEdit(request.widget)) {
        return drawLineEditFrame(request);
    }
    if (isA(request.widget, "QComboBoxPrivateContainer")) {
        QStyleOption panel(option);
        panel.state |= QStyle::State_Raised;
        request.draw(QStyle::PE_PanelMenu, panel);
        return true;
    }
    drawShape(*request.painter, onHalfPixel(option.rect), 0,
              outlinePen(cardBorderBrush(isEnabled(option))), Qt::NoBrush);
    return true;
}

bool drawLineEditFrame(const PaintRequest &request)
{
    // The page of a text edit has square corners, which would cut off round ones of its frame.
    const bool isSquare = isTextEdit(request.widget);
    drawShape(*request.painter, onHalfPixel(request.option->rect),
              isSquare ? 0 : cornerRadius(CornerSize::Base), framePen(request),
              frameGround(request));
    if (isInError(request.widget)) {
        drawErrorMark(request);
    }
    return true;
}

bool drawLineEditPanel(const PaintRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionFrame *>(request.option);
    if (!option) {
        return false;
    }
    const bool hasFrame = option->lineWidth > 0;
    drawPanel(request, hasFrame);
    if (hasFrame) {
        QStyleOptionFrame frame(*option);
        frame.features |= liesOnPanel;
        request.draw(QStyle::PE_FrameLineEdit, frame);
    }
    return true;
}

} // namespace TARN::Inputs
