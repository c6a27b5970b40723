#include "style/families/Labels.h"

#include "style/BaseStyle.h"

#include <QtWidgets/QWidget>

namespace TARN::Labels {

void polishDisabledText(BaseStyle & /*style*/, QWidget &widget)
{
    QPalette palette = widget.palette();
    palette.setBrush(QPalette::Disabled, QPalette::WindowText,
                     BaseStyle::getBrush(QStringLiteral("ForegroundBrush"), false));
    widget.setPalette(palette);
}

} // namespace TARN::Labels
