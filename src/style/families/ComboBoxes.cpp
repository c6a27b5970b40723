#include "style/families/ComboBoxes.h"

#include "catalogue/Names.h"
#include "resources/ThemeColorHelper.h"
#include "style/ComboBoxDefaultItemDelegate.h"
#include "style/asking/Classes.h"
#include "style/asking/OptionState.h"
#include "style/brushes/ButtonBrushChoice.h"
#include "style/brushes/InputBrushes.h"
#include "style/brushes/LabelBrushes.h"
#include "style/drawing/Focus.h"
#include "style/drawing/Icons.h"
#include "style/drawing/Shapes.h"
#include "style/families/ComboBoxLists.h"
#include "style/families/buttons/PushButtons.h"
#include "style/polishing/Polishing.h"
#include "style/text/ElidedText.h"

#include <QtGui/QPainter>
#include <QtWidgets/QComboBox>

namespace TARN::ComboBoxes {

namespace {

int arrowExtent(const SubControlRequest &request)
{
    return request.metric(QStyle::PM_MenuButtonIndicator);
}

QRect editFieldRect(const SubControlRequest &request)
{
    QRect rect = withinReach(request.option->rect);
    const auto *option = qstyleoption_cast<const QStyleOptionComboBox *>(request.option);
    if (!option) {
        return rect;
    }
    const int width = rect.width();
    const int height = rect.height();
    if (option->editable) {
        // The arrow keeps a square of about the control's height.
        rect.adjust(1, 1, 0, -1);
        rect.setRight(width - height + 2);
    } else {
        rect.setLeft(rect.left() + 2);
        rect.setRight(width - arrowExtent(request));
    }
    return rect;
}

QRect arrowRect(const SubControlRequest &request)
{
    QRect rect = withinReach(request.option->rect);
    rect.setLeft(rect.width() + 4 - qMax(rect.height(), arrowExtent(request)));
    return rect;
}

/// A combo box together with its option, which is always of its type.
struct ComboBoxRequest
{
    const PaintRequest &request;
    const QStyleOptionComboBox &option;

    QRect subControlRect(QStyle::SubControl subControl) const
    {
        return request.proxy().subControlRect(QStyle::CC_ComboBox, &option, subControl,
                                              request.widget);
    }

    void drawPrimitive(QStyle::PrimitiveElement element, const QStyleOption &part) const
    {
        request.draw(element, part);
    }
};

/// Mirrors the parts of a combo box that cannot be edited: wherever it is clicked, it opens. The
/// editor of any other stands where the sub-controls are, and these are not mirrored.
QRect visualPart(const QStyleOptionComboBox &option, const QRect &rect)
{
    return option.editable ? rect
                           : QStyle::visualRect(option.direction, withinReach(option.rect), rect);
}

/// Returns how far the arrow makes way for the error mark at the end of the button. An editable
/// combo box has the mark in its field.
int errorMarkRoom(const ComboBoxRequest &comboBox)
{
    constexpr int markAndMargin = 20;
    const bool hasMark = !comboBox.option.editable && isInError(comboBox.request.widget);
    return hasMark ? qMin(markAndMargin, withinReach(comboBox.option.rect).height()) : 0;
}

/// Returns where the arrow is painted, before it is mirrored.
QRect paintedArrowRect(const ComboBoxRequest &comboBox)
{
    return comboBox.subControlRect(QStyle::SC_ComboBoxArrow)
        .translated(-errorMarkRoom(comboBox), 0);
}

void drawField(const ComboBoxRequest &comboBox)
{
    if (comboBox.option.frame) {
        comboBox.drawPrimitive(QStyle::PE_FrameLineEdit, comboBox.option);
        return;
    }
    QStyleOptionFrame panel;
    panel.QStyleOption::operator=(comboBox.option);
    comboBox.drawPrimitive(QStyle::PE_PanelLineEdit, panel);
}

void drawFocusRect(const ComboBoxRequest &comboBox)
{
    // Midway between the outline and the text.
    constexpr int margin = 2;
    TARN::drawFocusRect(
        comboBox.request,
        withinReach(comboBox.option.rect).adjusted(margin, margin, -margin, -margin));
}

void drawButton(const ComboBoxRequest &comboBox)
{
    QStyleOptionButton button;
    button.QStyleOption::operator=(comboBox.option);
    comboBox.drawPrimitive(QStyle::PE_PanelButtonCommand,
                           *preparedForLabel<QStyleOptionButton>(&button, comboBox.request.widget));
    if (has(comboBox.option, QStyle::State_HasFocus)) {
        drawFocusRect(comboBox);
    }
}

void drawArrow(const ComboBoxRequest &comboBox)
{
    const QStyleOptionComboBox &option = comboBox.option;
    QStyleOption arrow(option);
    arrow.rect = visualPart(option, paintedArrowRect(comboBox));
    // Only the arrow opens a combo box that can be edited, so only there the mouse is answered.
    if (option.editable && !option.activeSubControls.testFlag(QStyle::SC_ComboBoxArrow)) {
        arrow.state &= ~(QStyle::State_MouseOver | QStyle::State_Sunken);
    }
    comboBox.drawPrimitive(QStyle::PE_IndicatorArrowDown, arrow);
}

/// Returns the room for icon and text, which ends where the arrow begins.
QRect labelRect(const ComboBoxRequest &comboBox)
{
    QRect rect = comboBox.subControlRect(QStyle::SC_ComboBoxEditField);
    if (!comboBox.option.editable) {
        const int arrowCenter = paintedArrowRect(comboBox).center().x();
        const int arrowReach = comboBox.request.proxy().pixelMetric(
            QStyle::PM_MenuButtonIndicator, &comboBox.option, comboBox.request.widget);
        rect.setRight(qMin(rect.right(), arrowCenter - arrowReach));
    }
    return visualPart(comboBox.option, rect);
}

/// Returns the rectangle of the icon and the space around it, for which the toolkit makes room
/// before the editor.
QRect iconRect(const QStyleOptionComboBox &option, const QRect &label)
{
    constexpr int space = 4;
    return QStyle::alignedRect(option.direction, Qt::AlignLeft | Qt::AlignVCenter,
                               {option.iconSize.width() + space, label.height()}, label);
}

/// Draws the ground of the icon beside an editor, and the line between them.
void drawIconField(const ComboBoxRequest &comboBox, const QRect &rect)
{
    const bool enabled = isEnabled(comboBox.option);
    QPainter &painter = *comboBox.request.painter;
    const QBrush ground = fieldBrush(enabled);
    drawShape(painter, QRectF(rect).adjusted(0.5, 2.5, -0.5, -2.5), cornerRadius(CornerSize::Small),
              outlinePen(ground), ground);
    const bool isOfComboBox = qobject_cast<const QComboBox *>(comboBox.request.widget) != nullptr;
    const QRect line(isRightToLeft(comboBox.option) ? rect.left() : rect.right(), rect.top() + 3, 1,
                     rect.height() - 6);
    painter.fillRect(line, themeBrush(isOfComboBox ? BrushName::BackgroundSubLevel2Brush
                                                   : BrushName::BackgroundUpLevel1Brush,
                                      enabled));
}

void drawLabelIcon(const ComboBoxRequest &comboBox, const QRect &rect)
{
    const QStyleOptionComboBox &option = comboBox.option;
    const QWidget *widget = comboBox.request.widget;
    if (option.editable) {
        drawIconField(comboBox, rect);
    }
    const QIcon icon = ThemeColorHelper::getModifiedIconWithForegroundBrush(
        option.currentIcon, buttonBrushes(&option, widget).foreground);
    const QPixmap pixmap =
        iconPixmap(icon, option.iconSize, isEnabled(option) ? QIcon::Normal : QIcon::Disabled,
                   QIcon::Off, widget);
    comboBox.request.proxy().drawItemPixmap(comboBox.request.painter, rect, Qt::AlignCenter,
                                            pixmap);
}

/// Tells whether the text of the label only tells what could be chosen.
bool isPlaceholder(const ComboBoxRequest &comboBox)
{
    const auto *widget = qobject_cast<const QComboBox *>(comboBox.request.widget);
    return widget && widget->currentIndex() < 0;
}

void drawLabelText(const ComboBoxRequest &comboBox, const QRect &rect)
{
    const QStyleOptionComboBox &option = comboBox.option;
    const bool enabled = isEnabled(option);
    const QPalette palette =
        isPlaceholder(comboBox)
            ? option.palette
            : labelPalette(option, themeBrush(BrushName::ForegroundBrush, enabled));
    const Qt::Alignment side =
        QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignVCenter);
    comboBox.request.proxy().drawItemText(
        comboBox.request.painter, rect, int(side), palette, enabled,
        elidedText(option.fontMetrics, option.currentText, Qt::ElideRight, rect.width()),
        QPalette::ButtonText);
}

/// Draws icon and text inside of \a rect, of which the text of a combo box that can be edited is
/// the editor's.
void drawLabelParts(const ComboBoxRequest &comboBox, QRect rect)
{
    const QStyleOptionComboBox &option = comboBox.option;
    if (!option.currentIcon.isNull()) {
        const QRect icon = iconRect(option, rect);
        drawLabelIcon(comboBox, icon);
        isRightToLeft(option) ? rect.setRight(icon.left() - 1) : rect.setLeft(icon.right() + 1);
    }
    if (!option.editable && !option.currentText.isEmpty()) {
        drawLabelText(comboBox, rect.adjusted(1, 0, -1, 0));
    }
}

/// Draws the label, whose icon may be larger than the room for it.
void drawClippedLabel(const ComboBoxRequest &comboBox)
{
    QPainter &painter = *comboBox.request.painter;
    const QRect rect = labelRect(comboBox);
    painter.save();
    painter.setClipRect(rect, Qt::IntersectClip);
    drawLabelParts(comboBox, rect);
    painter.restore();
}

} // namespace

QRect subControlRect(const SubControlRequest &request)
{
    switch (request.subControl) {
    case QStyle::SC_ComboBoxEditField:
        return editFieldRect(request);
    case QStyle::SC_ComboBoxArrow:
        return arrowRect(request);
    default:
        return request.baseRect();
    }
}

QRect subControlRectWithList(const SubControlRequest &request)
{
    const auto *comboBox = qobject_cast<const QComboBox *>(request.widget);
    if (comboBox && request.subControl == QStyle::SC_ComboBoxListBoxPopup) {
        // It is about to be placed, for which its items are measured.
        polishListOf(*comboBox);
    }
    return subControlRect(request);
}

QSize comboBoxSize(const ContentsRequest &request)
{
    ContentsRequest lower = request;
    lower.contents.rheight() -= 1;
    return {request.baseSize().width(), Buttons::pushButtonHeight(lower)};
}

void polishDelegate(Polishing &polishing)
{
    QStyle &style = polishing.style();
    auto &comboBox = static_cast<QComboBox &>(polishing.widget());
    const QAbstractItemDelegate *delegate = comboBox.itemDelegate();
    // A style that the combo box had before takes its delegates with it.
    const bool isOfFormerStyle =
        delegate && delegate->parent() != &style && isA(delegate->parent(), "TARN::BaseStyle");
    // The latter is what the toolkit gives combo boxes under other styles.
    const bool isDefault =
        isA(delegate, "QComboBoxDelegate") || isA(delegate, "QComboMenuDelegate");
    if (isDefault || isOfFormerStyle) {
        comboBox.setItemDelegate(new ComboBoxDefaultItemDelegate(&style, &comboBox));
    }
}

void replaceDelegates(const QStyle &style)
{
    const auto delegates =
        style.findChildren<ComboBoxDefaultItemDelegate *>(QString(), Qt::FindDirectChildrenOnly);
    for (const ComboBoxDefaultItemDelegate *delegate : delegates) {
        QComboBox *combo = delegate->comboBox();
        if (combo && combo->itemDelegate() == delegate) {
            combo->setItemDelegate(new ComboBoxDefaultItemDelegate(combo, combo));
        }
    }
}

bool drawLabel(const PaintRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionComboBox *>(request.option);
    if (option) {
        drawClippedLabel({request, *option});
    }
    return option != nullptr;
}

bool drawComboBox(const PaintRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionComboBox *>(request.option);
    if (!option) {
        return false;
    }
    const ComboBoxRequest comboBox{request, *option};
    if (option->editable) {
        drawField(comboBox);
    } else {
        drawButton(comboBox);
    }
    if (option->subControls.testFlag(QStyle::SC_ComboBoxArrow)) {
        drawArrow(comboBox);
    }
    return true;
}

} // namespace TARN::ComboBoxes
