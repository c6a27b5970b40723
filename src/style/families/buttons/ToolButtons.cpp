#include "style/families/buttons/ToolButtons.h"

#include "style/asking/Classes.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/brushes/ButtonBrushChoice.h"
#include "style/brushes/LabelBrushes.h"
#include "style/drawing/Icons.h"
#include "style/families/buttons/ButtonPanels.h"
#include "style/families/buttons/ButtonParts.h"
#include "style/text/ElidedText.h"
#include "style/text/Mnemonic.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

namespace TARN::ToolButtons {

namespace {

/// How far the focus is inside of the button.
constexpr int focusMargin = 2;
/// What tool buttons leave between icon and text in their size hints.
constexpr int iconSpacing = 4;

/// Returns the state of a part: it is sunken only while it is itself pressed, and raised while the
/// other one is.
QStyle::State partState(const QStyleOptionToolButton &button, QStyle::SubControl part)
{
    QStyle::State state = button.state;
    if (state.testFlag(QStyle::State_AutoRaise) && !isHovered(button)) {
        state &= ~QStyle::State_Raised;
    }
    if (state.testFlag(QStyle::State_Sunken) && !button.activeSubControls.testFlag(part)) {
        state ^= QStyle::State_Sunken;
        state |= QStyle::State_Raised;
    }
    return state;
}

bool standsOut(QStyle::State state)
{
    return state & (QStyle::State_Sunken | QStyle::State_On | QStyle::State_Raised);
}

QStyleOptionToolButton partOf(const PaintRequest &request, const QStyleOptionToolButton &button,
                              QStyle::SubControl part)
{
    QStyleOptionToolButton option = button;
    option.rect =
        request.proxy().subControlRect(QStyle::CC_ToolButton, &button, part, request.widget);
    option.state = partState(button, part);
    return option;
}

void drawMenuPart(const PaintRequest &request, const QStyleOptionToolButton &button)
{
    QStyleOptionToolButton part = partOf(request, button, QStyle::SC_ToolButtonMenu);
    // No part of it is the menu's: this is what tells the menu's part from the face.
    part.subControls = QStyle::SC_None;
    if (standsOut(part.state)) {
        request.draw(QStyle::PE_IndicatorButtonDropDown, part);
    }
    request.draw(QStyle::PE_IndicatorArrowDown, part);
}

QIcon::Mode iconMode(const QStyleOptionToolButton &button)
{
    if (!isEnabled(button)) {
        return QIcon::Disabled;
    }
    return isHovered(button) && has(button, QStyle::State_AutoRaise) ? QIcon::Active
                                                                     : QIcon::Normal;
}

/// Where the parts of a label are.
struct LabelPlaces
{
    QRect icon;
    QRect text;
    int textAlignment;
};

LabelPlaces placesUnderEachOther(const QRect &rect, const QSize &iconSize)
{
    const int iconHeight = iconSize.height() + iconSpacing;
    // The line of text has room above it already.
    return {QRect(rect.left(), rect.top(), rect.width(), iconHeight),
            rect.adjusted(0, iconHeight - 1, 0, -1), Qt::AlignCenter};
}

LabelPlaces placesBesideEachOther(const QStyleOptionToolButton &button, const QSize &iconSize,
                                  const QWidget *widget)
{
    const QRect &rect = button.rect;
    const int iconWidth = iconSize.width() + iconSpacing;
    QRect icon(rect.left(), rect.top(), iconWidth, rect.height());
    QRect text = rect.adjusted(iconWidth, 0, 0, 0);
    if (isSet(widget, Property::UserConnector)) {
        // Who is signed in is shown as in a list of people: the name, and the portrait at the end.
        icon.moveRight(rect.right());
        text.moveLeft(rect.left());
    } else if (!textOf(widget, Property::ButtonType).isEmpty()) {
        // A button of a kind looks like the push buttons of that kind: all in the middle.
        const int textWidth = button.fontMetrics.size(Qt::TextShowMnemonic, button.text).width();
        const int shift = qMax(0, (text.width() - textWidth) / 2);
        icon.translate(shift, 0);
        text.setLeft(text.left() + shift);
    }
    return {QStyle::visualRect(button.direction, rect, icon),
            QStyle::visualRect(button.direction, rect, text),
            int(QStyle::visualAlignment(button.direction, Qt::AlignLeft)) | Qt::AlignVCenter};
}

LabelPlaces labelPlaces(const QStyleOptionToolButton &button, const QSize &iconSize,
                        const QWidget *widget)
{
    switch (button.toolButtonStyle) {
    case Qt::ToolButtonTextUnderIcon:
        return placesUnderEachOther(button.rect, iconSize);
    case Qt::ToolButtonTextBesideIcon:
        return placesBesideEachOther(button, iconSize, widget);
    default:
        return {button.rect, QRect(), Qt::AlignCenter};
    }
}

bool showsOnlyText(const QStyleOptionToolButton &button)
{
    const bool hasPicture =
        button.features.testFlag(QStyleOptionToolButton::Arrow) || !button.icon.isNull();
    return button.toolButtonStyle == Qt::ToolButtonTextOnly ||
           (!hasPicture && !button.text.isEmpty());
}

void drawLabelText(const PaintRequest &request, const QStyleOptionToolButton &button,
                   const QRect &rect, int alignment)
{
    const int flags = mnemonicFlags(request);
    const QString text =
        elidedText(button.fontMetrics, button.text, Qt::ElideMiddle, rect.width(), flags);
    const QFont font = request.painter->font();
    request.painter->setFont(button.font);
    request.proxy().drawItemText(request.painter, rect, alignment | flags, button.palette,
                                 isEnabled(button), text, QPalette::ButtonText);
    request.painter->setFont(font);
}

/// Returns the element that draws \a arrow; PE_CustomBase when there is no arrow.
QStyle::PrimitiveElement elementOf(Qt::ArrowType arrow)
{
    switch (arrow) {
    case Qt::UpArrow:
        return QStyle::PE_IndicatorArrowUp;
    case Qt::DownArrow:
        return QStyle::PE_IndicatorArrowDown;
    case Qt::LeftArrow:
        return QStyle::PE_IndicatorArrowLeft;
    case Qt::RightArrow:
        return QStyle::PE_IndicatorArrowRight;
    default:
        return QStyle::PE_CustomBase;
    }
}

/// Tells whether a part has a face at all: the buttons of a dock have one only while they are used,
/// and what is disabled is not used.
bool hasFace(const QStyleOption &part, const QWidget *widget)
{
    if (isA(widget, "QDockWidgetTitleButton")) {
        return isHovered(part) || (isEnabled(part) && has(part, QStyle::State_Sunken));
    }
    return isEnabled(part) || has(part, QStyle::State_On) || !has(part, QStyle::State_AutoRaise);
}

bool showsMenuArrow(const QStyleOptionToolButton &option, const QWidget *widget)
{
    return option.features.testFlag(QStyleOptionToolButton::HasMenu) &&
           !option.features.testFlag(QStyleOptionToolButton::Arrow) &&
           !option.features.testFlag(QStyleOptionToolButton::Menu) &&
           !isSet(widget, Property::NoMenuArrow);
}

} // namespace

QSize toolButtonSize(const ContentsRequest &request)
{
    QSize size = request.baseSize();
    const auto *option = qstyleoption_cast<const QStyleOptionToolButton *>(request.option);
    if (!option) {
        return size;
    }
    if (request.widget && showsMenuArrow(*option, request.widget)) {
        size.rwidth() += request.metric(QStyle::PM_MenuButtonIndicator);
    }
    // An even height keeps the icon on whole pixels.
    size.rheight() += size.height() % 2;
    return size;
}

void drawArrow(const QStyle &style, const QStyleOptionToolButton &option, const QRect &rect,
               QPainter &painter, const QWidget *widget)
{
    const QStyle::PrimitiveElement element = elementOf(option.arrowType);
    if (element == QStyle::PE_CustomBase) {
        return;
    }
    QStyleOption arrow = option;
    arrow.rect = rect;
    // The caller's own option is prepared, so that the text which it paints next matches the arrow.
    useForeground(const_cast<QStyleOptionToolButton &>(option),
                  buttonBrushes(&option, widget).foreground);
    style.drawPrimitive(element, &arrow, &painter, widget);
}

bool drawToolButton(const PaintRequest &request)
{
    const auto *button = qstyleoption_cast<const QStyleOptionToolButton *>(request.option);
    if (!button) {
        return false;
    }
    const QStyle &proxy = request.proxy();
    QStyleOptionToolButton face = partOf(request, *button, QStyle::SC_ToolButton);
    if (button->subControls.testFlag(QStyle::SC_ToolButton) && standsOut(face.state)) {
        proxy.drawPrimitive(QStyle::PE_PanelButtonTool, &face, request.painter, request.widget);
    }
    if (button->subControls.testFlag(QStyle::SC_ToolButtonMenu)) {
        drawMenuPart(request, *button);
    }
    useForeground(face,
                  labelBrush(buttonBrushes(&face, request.widget).foreground, isEnabled(face)));
    Buttons::drawFocus(request, face.palette,
                       face.rect.adjusted(focusMargin, focusMargin, -focusMargin, -focusMargin));
    const int frame =
        proxy.pixelMetric(QStyle::PM_DefaultFrameWidth, request.option, request.widget);
    face.rect.adjust(frame, frame, -frame, -frame);
    if (showsMenuArrow(*button, request.widget)) {
        QStyleOption arrow = face;
        const int width = Buttons::menuColumnWidth(request);
        arrow.rect = Buttons::menuColumn(face.rect, width, face.direction);
        face.rect = Buttons::besideMenuColumn(face.rect, width, face.direction);
        proxy.drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, request.painter, request.widget);
    }
    proxy.drawControl(QStyle::CE_ToolButtonLabel, &face, request.painter, request.widget);
    return true;
}

bool drawPanel(const PaintRequest &request)
{
    return !hasFace(*request.option, request.widget) || Buttons::drawPanel(request);
}

bool drawLabel(const PaintRequest &request)
{
    const auto *button = qstyleoption_cast<const QStyleOptionToolButton *>(request.option);
    if (!button) {
        return false;
    }
    if (showsOnlyText(*button)) {
        drawLabelText(request, *button, button->rect, Qt::AlignCenter);
        return true;
    }
    const bool hasArrow = button->features.testFlag(QStyleOptionToolButton::Arrow);
    const QPixmap pixmap =
        hasArrow
            ? QPixmap()
            : iconPixmap(button->icon, button->iconSize.boundedTo(button->rect.size()),
                         iconMode(*button), has(*button, QStyle::State_On) ? QIcon::On : QIcon::Off,
                         request.widget);
    const LabelPlaces places =
        labelPlaces(*button, hasArrow ? button->iconSize : sizeOf(pixmap), request.widget);
    if (hasArrow) {
        drawArrow(request.proxy(), *button, places.icon, *request.painter, request.widget);
    } else {
        drawItemPixmap(request.proxy(), *request.painter, places.icon, pixmap);
    }
    if (button->toolButtonStyle != Qt::ToolButtonIconOnly) {
        drawLabelText(request, *button, places.text, places.textAlignment);
    }
    return true;
}

} // namespace TARN::ToolButtons
