#include "style/families/Inputs.h"

#include "style/BaseStyle.h"
#include "style/Geometry.h"
#include "style/IconTinting.h"
#include "style/families/Buttons.h"

namespace TARN::Inputs {

QSize lineEditSize(const BaseStyle &style, const ContentsRequest &request)
{
    return {baseSize(style, request).width(), Buttons::pushButtonHeight(style, request)};
}

void polishClearButton(BaseStyle &style, QWidget &widget)
{
    tintOnPaint(style, widget);
}

bool drawFrame(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawLineEditFrame(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawLineEditPanel(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

} // namespace TARN::Inputs
