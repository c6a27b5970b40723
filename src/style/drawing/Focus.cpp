#include "style/drawing/Focus.h"

#include <QtWidgets/QStyleOption>

namespace TARN {

void drawFocusRect(const PaintRequest &request, const QRect &rect)
{
    QStyleOptionFocusRect option;
    option.QStyleOption::operator=(*request.option);
    option.rect = rect;
    option.backgroundColor = option.palette.color(QPalette::Window);
    request.draw(QStyle::PE_FrameFocusRect, option);
}

} // namespace TARN
