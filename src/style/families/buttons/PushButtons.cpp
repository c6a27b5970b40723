#include "style/families/buttons/PushButtons.h"

#include "resources/ThemeColorHelper.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/brushes/ButtonBrushChoice.h"
#include "style/brushes/LabelBrushes.h"
#include "style/drawing/Icons.h"
#include "style/families/buttons/ButtonParts.h"
#include "style/polishing/Polishing.h"
#include "style/text/Mnemonic.h"
#include "style/watching/ButtonIcons.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWidget>

namespace TARN::Buttons {

namespace {

QStyleOptionButton asButtonOption(const QStyleOption &option)
{
    QStyleOptionButton button;
    button.QStyleOption::operator=(option);
    button.version = QStyleOptionButton::Version;
    button.type = QStyleOptionButton::Type;
    return button;
}

/// Tells whether a button is of a kind that a theme has brushes for.
bool hasKind(const QWidget *widget)
{
    return isSet(widget, Property::Highlighted) || !textOf(widget, Property::Status).isEmpty() ||
           !textOf(widget, Property::Order).isEmpty() ||
           !textOf(widget, Property::ButtonType).isEmpty();
}

/// Tells whether a push button shows a face: a plain flat one only does while it is pressed or
/// checked, and a command link under the mouse, too. The texts of default buttons and of kinds are
/// legible on their faces only.
bool hasFace(const QStyleOptionButton &button, const QWidget *widget)
{
    const bool isLink = button.features.testFlag(QStyleOptionButton::CommandLinkButton);
    if (!isLink && !button.features.testFlag(QStyleOptionButton::Flat)) {
        return true;
    }
    if (has(button, QStyle::State_Sunken) || has(button, QStyle::State_On) || hasKind(widget)) {
        return true;
    }
    if (isLink) {
        return has(button, QStyle::State_MouseOver);
    }
    return button.features.testFlag(QStyleOptionButton::DefaultButton) && isEnabled(button) &&
           has(button, QStyle::State_Active);
}

QPixmap labelPixmap(const QStyleOptionButton &button, const QBrush &brush, const QWidget *widget)
{
    const QIcon icon =
        isPreparedForLabel(button, brush)
            ? button.icon
            : ThemeColorHelper::getModifiedIconWithForegroundBrush(button.icon, brush);
    const QIcon::Mode enabledMode =
        has(button, QStyle::State_HasFocus) ? QIcon::Active : QIcon::Normal;
    return iconPixmap(icon, button.iconSize, isEnabled(button) ? enabledMode : QIcon::Disabled,
                      has(button, QStyle::State_On) ? QIcon::On : QIcon::Off, widget);
}

/// Draws the icon of a label so that icon and text together are in the middle of \a room. Returns
/// the room for the text.
QRect drawLabelIcon(const PaintRequest &request, const QStyleOptionButton &button,
                    const QRect &room, const QBrush &brush)
{
    constexpr int spacing = 4; // which is what push buttons add to their size hints
    const QPixmap pixmap = labelPixmap(button, brush, request.widget);
    const QSize size = sizeOf(pixmap);
    const int textWidth =
        button.text.isEmpty()
            ? 0
            : spacing + button.fontMetrics.size(Qt::TextShowMnemonic, button.text).width();
    // A text that is too long runs out of the button at its end, and the icon remains.
    const int left = room.left() + qMax(0, (room.width() - size.width() - textWidth) / 2);
    const QRect icon(left, room.top() + (room.height() - size.height()) / 2, size.width(),
                     size.height());
    drawItemPixmap(request.proxy(), *request.painter,
                   QStyle::visualRect(button.direction, room, icon), pixmap);
    const QRect text(QPoint(icon.right() + 1 + spacing, room.top()), room.bottomRight());
    return QStyle::visualRect(button.direction, room, text);
}

} // namespace

QSize pushButtonSize(const ContentsRequest &request)
{
    ContentsRequest raised = request;
    const int iconSize = request.metric(QStyle::PM_ButtonIconSize);
    raised.contents.setHeight(qMax(request.contents.height(), iconSize));
    return raised.baseSize();
}

int pushButtonHeight(const ContentsRequest &request)
{
    if (qstyleoption_cast<const QStyleOptionButton *>(request.option)) {
        return request.style
            .sizeFromContents(QStyle::CT_PushButton, request.option, request.contents,
                              request.widget)
            .height();
    }
    const QStyleOptionButton option = asButtonOption(*request.option);
    return request.style
        .sizeFromContents(QStyle::CT_PushButton, &option, request.contents, request.widget)
        .height();
}

void polishCommandLink(Polishing &polishing)
{
    tintOnPaint(polishing);
}

bool drawPushButton(const PaintRequest &request)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(request.option);
    if (!button) {
        return false;
    }
    const QStyle &proxy = request.proxy();
    // The bevel prepares the option for the label, so that the label is not prepared again.
    proxy.drawControl(QStyle::CE_PushButtonBevel, button, request.painter, request.widget);
    QStyleOptionButton label = *button;
    label.rect = proxy.subElementRect(QStyle::SE_PushButtonContents, button, request.widget);
    proxy.drawControl(QStyle::CE_PushButtonLabel, &label, request.painter, request.widget);
    drawFocus(request, button->palette,
              proxy.subElementRect(QStyle::SE_PushButtonFocusRect, button, request.widget));
    return true;
}

bool drawBevel(const PaintRequest &request)
{
    if (!qstyleoption_cast<const QStyleOptionButton *>(request.option)) {
        return false;
    }
    const auto *button = preparedForLabel<QStyleOptionButton>(request.option, request.widget);
    const QStyle &proxy = request.proxy();
    if (hasFace(*button, request.widget)) {
        proxy.drawPrimitive(QStyle::PE_PanelButtonCommand, button, request.painter, request.widget);
    } else if (button->features.testFlag(QStyleOptionButton::DefaultButton)) {
        // With a face, the outline of the face already is this frame.
        proxy.drawPrimitive(QStyle::PE_FrameDefaultButton, button, request.painter, request.widget);
    }
    if (button->features.testFlag(QStyleOptionButton::HasMenu)) {
        QStyleOptionButton arrow = *button;
        const QRect contents =
            proxy.subElementRect(QStyle::SE_PushButtonContents, button, request.widget);
        arrow.rect = menuColumn(contents, menuColumnWidth(request), button->direction);
        proxy.drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, request.painter, request.widget);
    }
    return true;
}

bool drawLabel(const PaintRequest &request)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(request.option);
    if (!button) {
        return false;
    }
    const QBrush brush =
        labelBrush(buttonBrushes(button, request.widget).foreground, isEnabled(*button));
    QRect room = button->rect;
    if (button->features.testFlag(QStyleOptionButton::HasMenu)) {
        room = besideMenuColumn(room, menuColumnWidth(request), button->direction);
    }
    int flags = Qt::AlignCenter;
    if (!button->icon.isNull()) {
        room = drawLabelIcon(request, *button, room, brush);
        flags = int(QStyle::visualAlignment(button->direction, Qt::AlignLeft)) | Qt::AlignVCenter;
    }
    request.proxy().drawItemText(request.painter, room, flags | mnemonicFlags(request),
                                 labelPalette(*button, brush), isEnabled(*button), button->text,
                                 QPalette::ButtonText);
    return true;
}

} // namespace TARN::Buttons
