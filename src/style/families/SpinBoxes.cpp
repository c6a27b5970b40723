#include "style/families/SpinBoxes.h"

#include "style/BaseStyle.h"
#include "style/Geometry.h"

#include <QtWidgets/QStyleOption>

namespace TARN::SpinBoxes {

namespace {

// The buttons stand in a column of 14 pixels, 2 away from the edge.
constexpr int buttonsLeft = 15;
constexpr int buttonsRight = 2;

QRect upRect(const QRect &rect)
{
    return {QPoint(rect.width() - buttonsLeft, 0),
            QPoint(rect.width() - buttonsRight, rect.height() / 2 - 1)};
}

QRect downRect(const QRect &rect)
{
    return {QPoint(rect.width() - buttonsLeft, rect.height() / 2),
            QPoint(rect.width() - buttonsRight, rect.bottom() - 1)};
}

QRect editFieldRect(const QRect &rect, bool hasButtons)
{
    const int right = rect.width() - (hasButtons ? buttonsLeft + 1 : 0);
    return {QPoint(1, 1), QPoint(right, rect.height() - 2)};
}

} // namespace

QRect subControlRect(const BaseStyle &style, const SubControlRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionSpinBox *>(request.option);
    if (!option) {
        return baseRect(style, request);
    }
    const QRect &rect = option->rect;
    const bool hasButtons = option->buttonSymbols != QAbstractSpinBox::NoButtons;
    const auto visual = [option](const QRect &logical) {
        return QStyle::visualRect(option->direction, option->rect, logical);
    };
    if (request.subControl == QStyle::SC_SpinBoxUp && hasButtons) {
        return visual(upRect(rect));
    }
    if (request.subControl == QStyle::SC_SpinBoxDown && hasButtons) {
        return visual(downRect(rect));
    }
    if (request.subControl == QStyle::SC_SpinBoxFrame) {
        return visual(rect);
    }
    if (request.subControl == QStyle::SC_SpinBoxEditField) {
        return visual(editFieldRect(rect, hasButtons));
    }
    return baseRect(style, request);
}

bool drawMinus(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawPlus(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawSpinBox(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

} // namespace TARN::SpinBoxes
