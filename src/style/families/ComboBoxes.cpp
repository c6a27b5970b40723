#include "style/families/ComboBoxes.h"

#include "style/BaseStyle.h"
#include "style/ComboBoxDefaultItemDelegate.h"
#include "style/Geometry.h"
#include "style/Properties.h"
#include "style/families/Buttons.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QStyleOption>

namespace TARN::ComboBoxes {

namespace {

int arrowExtent(const BaseStyle &style, const SubControlRequest &request)
{
    return style.proxy()->pixelMetric(QStyle::PM_MenuButtonIndicator, request.option,
                                      request.widget);
}

QRect editFieldRect(const BaseStyle &style, const SubControlRequest &request)
{
    QRect rect = request.option->rect;
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
        rect.setRight(width - arrowExtent(style, request));
    }
    return rect;
}

QRect arrowRect(const BaseStyle &style, const SubControlRequest &request)
{
    QRect rect = request.option->rect;
    rect.setLeft(rect.width() + 4 - qMax(rect.height(), arrowExtent(style, request)));
    return rect;
}

} // namespace

QRect subControlRect(const BaseStyle &style, const SubControlRequest &request)
{
    switch (request.subControl) {
    case QStyle::SC_ComboBoxEditField:
        return editFieldRect(style, request);
    case QStyle::SC_ComboBoxArrow:
        return arrowRect(style, request);
    default:
        return baseRect(style, request);
    }
}

QSize comboBoxSize(const BaseStyle &style, const ContentsRequest &request)
{
    ContentsRequest lower = request;
    lower.contents.rheight() -= 1;
    return {baseSize(style, request).width(), Buttons::pushButtonHeight(style, lower)};
}

void polishDelegate(BaseStyle &style, QWidget &widget)
{
    auto &comboBox = static_cast<QComboBox &>(widget);
    const QAbstractItemDelegate *delegate = comboBox.itemDelegate();
    // A style that the combo box had before takes its delegates with it.
    const bool isOfFormerStyle =
        delegate && delegate->parent() != &style && qobject_cast<BaseStyle *>(delegate->parent());
    // The latter is what the toolkit gives combo boxes under other styles.
    const bool isDefault =
        isA(delegate, "QComboBoxDelegate") || isA(delegate, "QComboMenuDelegate");
    if (isDefault || isOfFormerStyle) {
        comboBox.setItemDelegate(new ComboBoxDefaultItemDelegate(&style, &comboBox));
    }
}

bool drawLabel(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawComboBox(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

} // namespace TARN::ComboBoxes
