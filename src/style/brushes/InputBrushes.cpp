#include "style/brushes/InputBrushes.h"

#include "catalogue/ComposedBrushes.h"
#include "catalogue/Names.h"
#include "style/asking/Properties.h"

namespace TARN {

QBrush fieldBrush(bool enabled)
{
    return composedBrush(ComposedWidget::Input, KindWord(), StateWord(), BrushField::Background,
                         enabled);
}

bool isInError(const QWidget *widget)
{
    return isSet(widget, Property::DrawErrorIndicator);
}

QBrush errorBrush(bool enabled)
{
    return themeColor(ColorName::StatusDangerColor, enabled);
}

} // namespace TARN
