#include "style/families/CheckBoxes.h"

#include "style/BaseStyle.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtWidgets/QStyleOption>

namespace TARN::CheckBoxes {

QRect indicatorRect(const BaseStyle &style, const SubElementRequest &request)
{
    const QStyleOption &option = *request.option;
    const int width =
        style.proxy()->pixelMetric(QStyle::PM_IndicatorWidth, &option, request.widget);
    const int height =
        style.proxy()->pixelMetric(QStyle::PM_IndicatorHeight, &option, request.widget);
    const int top = option.rect.y() + (option.rect.height() - height) / 2;
    return QStyle::visualRect(option.direction, option.rect,
                              QRect(option.rect.x(), top, width, height));
}

QRect contentsRect(const BaseStyle &style, const SubElementRequest &request)
{
    const QStyleOption &option = *request.option;
    const QRect indicator = QStyle::visualRect(
        option.direction, option.rect,
        style.subElementRect(QStyle::SE_CheckBoxIndicator, &option, request.widget));
    const int spacing =
        style.proxy()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, &option, request.widget);
    const QRect contents(indicator.right() + spacing, option.rect.top(),
                         option.rect.width() - indicator.width() - spacing, option.rect.height());
    return QStyle::visualRect(option.direction, option.rect, contents);
}

bool drawCheckIndicator(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawRadioIndicator(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawCheckBox(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawLabel(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawRadioButton(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

} // namespace TARN::CheckBoxes

namespace TARN {

void BaseStyle::drawCheckMark(QPainter *painter, const QRect &rect, QBrush brush) const
{
    const qreal width = rect.width();
    const qreal height = rect.height();
    const QPointF corners[] = {{4.0, height * 0.5}, {width * 0.5, height - 3}, {width - 3.5, 4.0}};
    QPainterPath tick(corners[0]);
    tick.lineTo(corners[1]);
    tick.lineTo(corners[2]);
    tick.translate(rect.topLeft());

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(brush, 1.8, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter->setBrush(Qt::NoBrush);
    painter->drawPath(tick);
    painter->restore();
}

void BaseStyle::drawRadioMark(QPainter *painter, const QRect &rect, QBrush brush) const
{
    const int extent = qMin(rect.width(), rect.height());
    const qreal radius = extent / 3.5;
    // An odd extent counts half a pixel more, so that the dot is centred on whole coordinates.
    const qreal shift = extent % 2 != 0 ? 0.5 : 0;
    const QPointF center = QRectF(rect).center() + QPointF(shift, shift);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(brush);
    painter->drawEllipse(center, radius, radius);
    painter->restore();
}

} // namespace TARN
