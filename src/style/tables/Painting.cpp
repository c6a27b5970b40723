#include "style/tables/Painting.h"

#include "style/asking/ProgramColors.h"
#include "style/families/Arrows.h"
#include "style/families/CheckBoxes.h"
#include "style/families/ComboBoxLists.h"
#include "style/families/ComboBoxes.h"
#include "style/families/Dials.h"
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
#include "style/families/item_views/Headers.h"
#include "style/families/item_views/Indicators.h"
#include "style/families/item_views/ItemViews.h"
#include "style/families/item_views/Items.h"
#include "style/families/menus/MenuBars.h"
#include "style/families/menus/MenuItems.h"
#include "style/families/menus/MenuParts.h"
#include "style/families/menus/MenuSurfaces.h"
#include "style/families/tabs/TabLabels.h"
#include "style/families/tabs/TabShapes.h"

#include <QtGui/QPainter>

namespace TARN {

namespace {

constexpr PaintRule leftToBaseStyle = nullptr;

/// Stands for the rule by default; never called.
constexpr bool sameRule(const PaintRequest & /*request*/)
{
    return false;
}

struct Rules
{
    constexpr Rules(PaintRule byDefault, PaintRule complete)
        : ofModes{byDefault, complete == sameRule ? byDefault : complete}
    {
    }

    PaintRule ofModes[2];
};

// Each pair of rules stands at the index of its element.

constexpr Rules primitives[] = {
#define MOX_PRIMITIVE(element, rule, completeRule) {rule, completeRule},
#include "catalogue/Elements.def"
};

constexpr Rules controls[] = {
#define MOX_CONTROL(element, rule, completeRule) {rule, completeRule},
#include "catalogue/Elements.def"
};

constexpr Rules complexControls[] = {
#define MOX_COMPLEX_CONTROL(element, rule, completeRule) {rule, completeRule},
#include "catalogue/Elements.def"
};

template <int Size>
PaintRule ruleAt(const Rules (&rules)[Size], int element, Mode mode)
{
    return element >= 0 && element < Size ? rules[element].ofModes[static_cast<int>(mode)]
                                          : nullptr;
}

} // namespace

PaintRule paintRule(QStyle::PrimitiveElement element, Mode mode)
{
    return ruleAt(primitives, element, mode);
}

PaintRule paintRule(QStyle::ControlElement element, Mode mode)
{
    return ruleAt(controls, element, mode);
}

PaintRule paintRule(QStyle::ComplexControl control, Mode mode)
{
    return ruleAt(complexControls, control, mode);
}

namespace {

/// Paints by \a rule and puts the painter's pen, brush and render hints back.
bool paintAndRestore(PaintRule rule, const PaintRequest &request)
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

} // namespace

bool paint(PaintRule rule, const PaintRequest &request, Mode mode, const QPalette &own)
{
    // A part without a widget of its own belongs to what is being painted.
    const bool isPart = !request.widget && WidgetColors::current();
    if (mode == Mode::Default || isPart) {
        return paintAndRestore(rule, request);
    }
    const std::shared_ptr<const WidgetColors> colors = programColors(request, own);
    const WidgetColors::Scope scope(colors.get());
    return paintAndRestore(rule, request);
}

} // namespace TARN
