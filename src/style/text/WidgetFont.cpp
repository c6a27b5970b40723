#include "style/text/WidgetFont.h"

#include "style/asking/Properties.h"

#include <QtWidgets/QWidget>

namespace TARN {

void setPolishedFont(QWidget &widget, const QFont &font)
{
    setProperty(widget, Property::StyleSheetFont, font);
    widget.setFont(font);
}

} // namespace TARN
