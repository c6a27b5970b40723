#include "style/families/GroupBoxes.h"

#include "style/BaseStyle.h"

#include <QtWidgets/QStyleOption>

namespace TARN::GroupBoxes {

QRect subControlRect(const BaseStyle &style, const SubControlRequest &request)
{
    const QRect rect = style.QCommonStyle::subControlRect(request.control, request.option,
                                                          request.subControl, request.widget);
    const auto *option = qstyleoption_cast<const QStyleOptionGroupBox *>(request.option);
    const bool isCheckable = option && option->subControls.testFlag(QStyle::SC_GroupBoxCheckBox);
    if (request.subControl != QStyle::SC_GroupBoxLabel || !isCheckable) {
        return rect;
    }
    return {rect.x() + 1, rect.y(), rect.width() + 1, rect.height()};
}

bool drawFrame(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

} // namespace TARN::GroupBoxes
