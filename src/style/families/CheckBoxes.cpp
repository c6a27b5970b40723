#include "style/families/CheckBoxes.h"

#include "style/BaseStyle.h"

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

} // namespace TARN::CheckBoxes
