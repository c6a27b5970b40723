#include "style/families/buttons/ButtonPanels.h"

#include "catalogue/Names.h"
#include "style/asking/Classes.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/brushes/ButtonBrushChoice.h"
#include "style/drawing/Shapes.h"
#include "style/families/buttons/ButtonGroups.h"
#include "style/families/buttons/ButtonParts.h"

#include <QtGui/QPainter>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyleOption>

namespace TARN::Buttons {

namespace {

/// Tells whether \a option is that of the part of a tool button that opens its menu.
bool isToolButtonMenuPart(const QStyleOption &option)
{
    const auto *button = qstyleoption_cast<const QStyleOptionToolButton *>(&option);
    return button && button->features.testFlag(QStyleOptionToolButton::MenuButtonPopup) &&
           !button->subControls.testFlag(QStyle::SC_ToolButton);
}

/// Returns the corners of a part of a tool button that adjoin another part.
Helpers::StraightCornerFlags straightCorners(const QStyleOption &option)
{
    const auto *button = qstyleoption_cast<const QStyleOptionToolButton *>(&option);
    const bool isSplit = button && (isToolButtonMenuPart(option) ||
                                    button->subControls.testFlag(QStyle::SC_ToolButtonMenu));
    if (!isSplit) {
        return Helpers::NoStraightCorner;
    }
    const bool adjoinsOnTheLeft = isToolButtonMenuPart(option) != isRightToLeft(option);
    return adjoinsOnTheLeft ? Helpers::StraightTopLeft | Helpers::StraightBottomLeft
                            : Helpers::StraightTopRight | Helpers::StraightBottomRight;
}

/// Tells whether the face of an outline button is left out: at rest it is nothing but its outline.
bool isHollow(const PaintRequest &request)
{
    return !has(*request.option, QStyle::State_On) && !has(*request.option, QStyle::State_Sunken) &&
           !isHovered(*request.option) && isSet(request.widget, Property::Outline);
}

/// Tells whether a panel is the arrow part of a push button that is split in two, which is known by
/// its width.
bool isPushButtonMenuPart(const PaintRequest &request)
{
    const int width = request.option->rect.width();
    return qobject_cast<const QPushButton *>(request.widget) && width < request.widget->width() &&
           width == menuColumnWidth(request);
}

/// The arrow part of a split button reaches one pixel into the face, so that both share one line.
QRectF panelRect(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    QRectF rect = onHalfPixel(option.rect);
    if (isToolButtonMenuPart(option) || isPushButtonMenuPart(request)) {
        const qreal shared = 1.0;
        rect.adjust(isRightToLeft(option) ? 0 : -shared, 0, isRightToLeft(option) ? shared : 0, 0);
    }
    return rect;
}

int panelRadius(const PaintRequest &request)
{
    if (!isSet(request.widget, Property::Circular)) {
        return cornerRadius(CornerSize::Base);
    }
    // Half of an odd side is rounded up; the shape itself limits the radius to the exact half.
    return (qMin(request.option->rect.width(), request.option->rect.height()) + 1) / 2;
}

QPen borderPen(const QBrush &border)
{
    return border.style() == Qt::NoBrush ? QPen(Qt::NoPen) : outlinePen(border);
}

const QColor &dangerColor(const PaintRequest &request)
{
    return themeColor(ColorName::StatusDangerColor, isEnabled(*request.option));
}

QPen panelPen(const QBrush &border, const QBrush &face, const PaintRequest &request)
{
    if (isSet(request.widget, Property::DrawErrorIndicator)) {
        return borderPen(dangerColor(request));
    }
    // A face without a frame keeps its size: its own brush takes the place of the line.
    return borderPen(isSet(request.widget, Property::Frameless) ? face : border);
}

} // namespace

bool drawDefaultFrame(const PaintRequest &request)
{
    return qstyleoption_cast<const QStyleOptionButton *>(request.option) && drawFrame(request);
}

bool drawFrame(const PaintRequest &request)
{
    const QBrush border = buttonBrushes(request.option, request.widget).border;
    drawShape(*request.painter, onHalfPixel(request.option->rect), panelRadius(request),
              borderPen(border), Qt::NoBrush);
    return true;
}

bool drawPanel(const PaintRequest &request)
{
    const ButtonBrushes brushes = buttonBrushes(request.option, request.widget);
    const QRectF rect = panelRect(request);
    const int radius = panelRadius(request);
    const QBrush face = isHollow(request) ? QBrush(Qt::NoBrush) : brushes.background;
    const QPen pen = panelPen(brushes.border, face, request);
    if (request.widget && isA(request.widget->parent(), "TARN::Components::ButtonGroupWidget")) {
        request.painter->setRenderHint(QPainter::Antialiasing, radius > 0);
        request.painter->setPen(pen);
        request.painter->setBrush(face);
        drawInGroup(request.proxy(), rect, *request.painter, request.option, radius, brushes,
                    request.widget);
    } else {
        drawShape(*request.painter, rect, radius, pen, face, straightCorners(*request.option));
    }
    if (isSet(request.widget, Property::DrawErrorIndicator)) {
        Helpers::drawInputStatusIndicator(rect, radius, dangerColor(request), request.painter);
    }
    return true;
}

} // namespace TARN::Buttons
