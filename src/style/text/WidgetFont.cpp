#include "style/text/WidgetFont.h"

#include <QtWidgets/QWidget>

namespace TARN {

void setPolishedFont(QWidget &widget, const QFont &font)
{
    widget.setProperty("_q_styleSheetWidgetFont", font);
    widget.setFont(font);
}

} // namespace TARN
