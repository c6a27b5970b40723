#include "style/tables/Painting.h"

#include "style/families/Arrows.h"
#include "style/families/CheckBoxes.h"
#include "style/families/ComboBoxes.h"
#include "style/families/DockWidgets.h"
#include "style/families/Frames.h"
#include "style/families/GroupBoxes.h"
#include "style/families/Inputs.h"
#include "style/families/ProgressBars.h"
#include "style/families/ScrollBars.h"
#include "style/families/Sliders.h"
#include "style/families/SpinBoxes.h"
#include "style/families/Splitters.h"
#include "style/families/StatusBars.h"
#include "style/families/TitleBars.h"
#include "style/families/ToolBars.h"
#include "style/families/ToolBoxes.h"
#include "style/families/ToolTips.h"
#include "style/families/Windows.h"
#include "style/families/buttons/ButtonPanels.h"
#include "style/families/buttons/PushButtons.h"
#include "style/families/buttons/ToolButtons.h"
#include "style/families/item_views/ItemViews.h"
#include "style/families/item_views/Items.h"
#include "style/families/menus/MenuBars.h"
#include "style/families/menus/MenuItems.h"
#include "style/families/menus/MenuSurfaces.h"
#include "style/families/tabs/TabLabels.h"
#include "style/families/tabs/TabShapes.h"

#include <QtGui/QPainter>

namespace TARN {

namespace {

constexpr PaintRule leftToBaseStyle = nullptr;

// Each rule stands at the index of its element.

constexpr PaintRule primitives[] = {
#define MOX_PRIMITIVE(element, rule) rule,
#include "catalogue/Elements.def"
};

constexpr PaintRule controls[] = {
#define MOX_CONTROL(element, rule) rule,
#include "catalogue/Elements.def"
};

constexpr PaintRule complexControls[] = {
#define MOX_COMPLEX_CONTROL(element, rule) rule,
#include "catalogue/Elements.def"
};

template <int Size>
PaintRule ruleAt(const PaintRule (&rules)[Size], int element)
{
    return element >= 0 && element < Size ? rules[element] : nullptr;
}

} // namespace

PaintRule paintRule(QStyle::PrimitiveElement element)
{
    return ruleAt(primitives, element);
}

PaintRule paintRule(QStyle::ControlElement element)
{
    return ruleAt(controls, element);
}

PaintRule paintRule(QStyle::ComplexControl control)
{
    return ruleAt(complexControls, control);
}

bool paint(PaintRule rule, const PaintRequest &request)
{
    QPainter &painter = *request.painter;
    // The painter's own save() copies its whole state, which takes longer than many elements do.
    const QPen pen = painter.pen();
    const QBrush brush = painter.brush();
    const QPoint brushOrigin = painter.brushOrigin();
    const QPainter::RenderHints hints = painter.renderHints();
    const bool isPainted = rule(request);
    painter.setPen(pen);
    painter.setBrush(brush);
    painter.setBrushOrigin(brushOrigin);
    const QPainter::RenderHints switchedOn = painter.renderHints() & ~hints;
    painter.setRenderHints(switchedOn, false);
    painter.setRenderHints(hints, true);
    return isPainted;
}

} // namespace TARN
