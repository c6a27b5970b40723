#include "style/families/GroupBoxes.h"

#include "style/asking/OptionState.h"
#include "style/brushes/KeptBrushes.h"
#include "style/drawing/Focus.h"
#include "style/drawing/Lines.h"
#include "style/drawing/Shapes.h"
#include "style/text/ElidedText.h"
#include "style/text/Mnemonic.h"

#include <QtGui/QPainter>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QStyleOption>

namespace TARN::GroupBoxes {

namespace {

/// How far the frame stays away from the title, which stands on its upper line.
constexpr int titleMargin = 3;
/// How far a title begins from the edge of the group box, and how far it ends at least.
constexpr int titleInset = 8;

bool isFlat(const QStyleOption &option)
{
    const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(&option);
    return frame && frame->features.testFlag(QStyleOptionFrame::Flat);
}

/// Returns what the title and the check box of a group box occupy; nothing when it has none.
QRect titleRect(const PaintRequest &request)
{
    const auto *groupBox = qobject_cast<const QGroupBox *>(request.widget);
    if (!groupBox || (groupBox->title().isEmpty() && !groupBox->isCheckable())) {
        return {};
    }
    QStyleOptionGroupBox option;
    option.initFrom(groupBox);
    option.text = groupBox->title();
    option.textAlignment = groupBox->alignment();
    option.features.setFlag(QStyleOptionFrame::Flat, groupBox->isFlat());
    option.subControls = QStyle::SC_GroupBoxLabel;
    option.subControls.setFlag(QStyle::SC_GroupBoxCheckBox, groupBox->isCheckable());
    const auto rectOf = [&](QStyle::SubControl subControl) {
        return request.proxy().subControlRect(QStyle::CC_GroupBox, &option, subControl, groupBox);
    };
    const QRect label = option.text.isEmpty() ? QRect() : rectOf(QStyle::SC_GroupBoxLabel);
    const QRect checkBox = groupBox->isCheckable() ? rectOf(QStyle::SC_GroupBoxCheckBox) : QRect();
    return label.united(checkBox).adjusted(-titleMargin, 0, titleMargin, 0);
}

/// Returns the brush of the line inside of the border, which sets it off from what it surrounds.
QBrush innerBrush(const QBrush &border)
{
    return border.style() == Qt::SolidPattern ? QBrush(border.color().lighter()) : border;
}

/// A flat group box has no more than a rule below its title.
void drawRule(QPainter &painter, const QRect &rect, const QBrush &border)
{
    fillEdge(painter, rect, Qt::TopEdge, border, Line::Exact);
    fillEdge(painter, rect.adjusted(0, 1, 0, 0), Qt::TopEdge, innerBrush(border), Line::Exact);
}

void drawOutline(QPainter &painter, const QRect &rect, const QBrush &border)
{
    const QRectF outline = onHalfPixel(rect);
    const int radius = cornerRadius(CornerSize::Medium);
    drawShape(painter, outline.adjusted(1, 1, -1, -1), qMax(radius - 1, 0),
              outlinePen(innerBrush(border)), Qt::NoBrush);
    drawShape(painter, outline, radius, outlinePen(border), Qt::NoBrush);
}

QRect partRect(const PaintRequest &request, const QStyleOptionGroupBox &option,
               QStyle::SubControl subControl)
{
    return request.proxy().subControlRect(QStyle::CC_GroupBox, &option, subControl, request.widget);
}

void drawFramePart(const PaintRequest &request, const QStyleOptionGroupBox &option)
{
    QStyleOptionFrame frame;
    frame.QStyleOption::operator=(option);
    frame.features = option.features;
    frame.lineWidth = option.lineWidth;
    frame.midLineWidth = option.midLineWidth;
    frame.rect = partRect(request, option, QStyle::SC_GroupBoxFrame);
    request.draw(QStyle::PE_FrameGroupBox, frame);
}

void drawTitle(const PaintRequest &request, const QStyleOptionGroupBox &option)
{
    const QRect rect = partRect(request, option, QStyle::SC_GroupBoxLabel);
    const int flags = mnemonicFlags(request);
    const bool hasOwnColor = option.textColor.isValid();
    if (hasOwnColor) {
        request.painter->setPen(option.textColor);
    }
    request.proxy().drawItemText(
        request.painter, rect,
        int(QStyle::visualAlignment(option.direction, Qt::AlignLeft) | Qt::AlignVCenter) | flags,
        option.palette, isEnabled(option),
        elidedText(option.fontMetrics, option.text, Qt::ElideRight, rect.width(), flags),
        hasOwnColor ? QPalette::NoRole : QPalette::WindowText);
    if (has(option, QStyle::State_HasFocus)) {
        drawFocusRect(request, rect);
    }
}

void drawCheckBox(const PaintRequest &request, const QStyleOptionGroupBox &option)
{
    QStyleOptionButton checkBox;
    checkBox.QStyleOption::operator=(option);
    checkBox.rect = partRect(request, option, QStyle::SC_GroupBoxCheckBox);
    request.draw(QStyle::PE_IndicatorCheckBox, checkBox);
}

/// Has \a draw paint inside of \a region only.
template <typename Draw>
void drawClipped(QPainter &painter, const QRegion &region, Draw draw)
{
    // Rectangles that are scaled need not meet any more.
    if (painter.deviceTransform().type() > QTransform::TxTranslate) {
        painter.save();
        painter.setClipRegion(region, Qt::IntersectClip);
        draw();
        painter.restore();
        return;
    }
    // Preparing to clip by anything but a rectangle takes ten times as long as painting.
    for (const QRect &rect : region) {
        painter.save();
        painter.setClipRect(rect, Qt::IntersectClip);
        draw();
        painter.restore();
    }
}

} // namespace

QRect subControlRect(const SubControlRequest &request)
{
    const QRect rect = request.style.QCommonStyle::subControlRect(
        request.control, request.option, request.subControl, request.widget);
    const auto *option = qstyleoption_cast<const QStyleOptionGroupBox *>(request.option);
    const bool isCheckable = option && option->subControls.testFlag(QStyle::SC_GroupBoxCheckBox);
    if (request.subControl != QStyle::SC_GroupBoxLabel || !isCheckable) {
        return rect;
    }
    return {rect.x() + 1, rect.y(), rect.width() + 1, rect.height()};
}

bool drawFrame(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    QPainter &painter = *request.painter;
    const QBrush &border = cardBorderBrush(isEnabled(option));
    const auto draw = isFlat(option) ? drawRule : drawOutline;
    const QRect title = titleRect(request);
    if (!title.intersects(option.rect)) {
        draw(painter, option.rect, border);
        return true;
    }
    const QRegion region = QRegion(option.rect) - title;
    drawClipped(painter, region, [&] { draw(painter, option.rect, border); });
    return true;
}

QRect boundedSubControlRect(const SubControlRequest &request)
{
    const QRect rect = subControlRect(request);
    const auto *option = qstyleoption_cast<const QStyleOptionGroupBox *>(request.option);
    if (!option || request.subControl != QStyle::SC_GroupBoxLabel) {
        return rect;
    }
    const bool isFlat = option->features.testFlag(QStyleOptionFrame::Flat);
    const int margin = isFlat ? 0 : titleInset;
    return rect & option->rect.adjusted(margin, 0, -margin, 0);
}

bool drawGroupBox(const PaintRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionGroupBox *>(request.option);
    if (!option) {
        return false;
    }
    if (option->subControls.testFlag(QStyle::SC_GroupBoxFrame)) {
        drawFramePart(request, *option);
    }
    if (option->subControls.testFlag(QStyle::SC_GroupBoxLabel) && !option->text.isEmpty()) {
        drawTitle(request, *option);
    }
    if (option->subControls.testFlag(QStyle::SC_GroupBoxCheckBox)) {
        drawCheckBox(request, *option);
    }
    return true;
}

} // namespace TARN::GroupBoxes
