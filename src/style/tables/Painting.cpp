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

#define MOX_ELEMENT(element, rule)                                                                 \
    PaintedElement                                                                                 \
    {                                                                                              \
        QStyle::element, #element, rule                                                            \
    }

constexpr PaintedElement primitives[] = {
    MOX_ELEMENT(PE_Frame, Inputs::drawFrame),
    MOX_ELEMENT(PE_FrameDefaultButton, Buttons::drawDefaultFrame),
    MOX_ELEMENT(PE_FrameDockWidget, leftToBaseStyle),
    MOX_ELEMENT(PE_FrameFocusRect, Frames::drawFocusRect),
    MOX_ELEMENT(PE_FrameGroupBox, GroupBoxes::drawFrame),
    MOX_ELEMENT(PE_FrameLineEdit, Inputs::drawLineEditFrame),
    MOX_ELEMENT(PE_FrameMenu, leftToBaseStyle),
    MOX_ELEMENT(PE_FrameStatusBarItem, leftToBaseStyle),
    MOX_ELEMENT(PE_FrameTabWidget, Tabs::drawWidgetFrame),
    MOX_ELEMENT(PE_FrameWindow, Windows::drawFrame),
    MOX_ELEMENT(PE_FrameButtonBevel, leftToBaseStyle),
    MOX_ELEMENT(PE_FrameButtonTool, leftToBaseStyle),
    MOX_ELEMENT(PE_FrameTabBarBase, Tabs::drawBarBase),
    MOX_ELEMENT(PE_PanelButtonCommand, Buttons::drawPanel),
    MOX_ELEMENT(PE_PanelButtonBevel, Buttons::drawPanel),
    MOX_ELEMENT(PE_PanelButtonTool, leftToBaseStyle),
    MOX_ELEMENT(PE_PanelMenuBar, leftToBaseStyle),
    MOX_ELEMENT(PE_PanelToolBar, leftToBaseStyle),
    MOX_ELEMENT(PE_PanelLineEdit, Inputs::drawLineEditPanel),
    MOX_ELEMENT(PE_IndicatorArrowDown, Arrows::drawDown),
    MOX_ELEMENT(PE_IndicatorArrowLeft, Arrows::drawLeft),
    MOX_ELEMENT(PE_IndicatorArrowRight, Arrows::drawRight),
    MOX_ELEMENT(PE_IndicatorArrowUp, Arrows::drawUp),
    MOX_ELEMENT(PE_IndicatorBranch, leftToBaseStyle),
    MOX_ELEMENT(PE_IndicatorButtonDropDown, leftToBaseStyle),
    MOX_ELEMENT(PE_IndicatorItemViewItemCheck, leftToBaseStyle),
    MOX_ELEMENT(PE_IndicatorCheckBox, CheckBoxes::drawCheckIndicator),
    MOX_ELEMENT(PE_IndicatorDockWidgetResizeHandle, leftToBaseStyle),
    MOX_ELEMENT(PE_IndicatorHeaderArrow, leftToBaseStyle),
    MOX_ELEMENT(PE_IndicatorMenuCheckMark, leftToBaseStyle),
    MOX_ELEMENT(PE_IndicatorProgressChunk, leftToBaseStyle),
    MOX_ELEMENT(PE_IndicatorRadioButton, CheckBoxes::drawRadioIndicator),
    MOX_ELEMENT(PE_IndicatorSpinDown, leftToBaseStyle),
    MOX_ELEMENT(PE_IndicatorSpinMinus, SpinBoxes::drawMinus),
    MOX_ELEMENT(PE_IndicatorSpinPlus, SpinBoxes::drawPlus),
    MOX_ELEMENT(PE_IndicatorSpinUp, leftToBaseStyle),
    MOX_ELEMENT(PE_IndicatorToolBarHandle, ToolBars::drawHandle),
    MOX_ELEMENT(PE_IndicatorToolBarSeparator, ToolBars::drawSeparator),
    MOX_ELEMENT(PE_PanelTipLabel, ToolTips::drawTip),
    MOX_ELEMENT(PE_IndicatorTabTear, leftToBaseStyle),
    MOX_ELEMENT(PE_PanelScrollAreaCorner, ScrollBars::drawCorner),
    MOX_ELEMENT(PE_Widget, Windows::drawBackground),
    MOX_ELEMENT(PE_IndicatorColumnViewArrow, ItemViews::drawColumnArrow),
    MOX_ELEMENT(PE_IndicatorItemViewItemDrop, leftToBaseStyle),
    MOX_ELEMENT(PE_PanelItemViewItem, ItemViews::drawItemPanel),
    MOX_ELEMENT(PE_PanelItemViewRow, ItemViews::drawRow),
    MOX_ELEMENT(PE_PanelStatusBar, StatusBars::drawPanel),
    MOX_ELEMENT(PE_IndicatorTabClose, Tabs::drawCloseIndicator),
    MOX_ELEMENT(PE_PanelMenu, Menus::drawPanel),
    MOX_ELEMENT(PE_IndicatorTabTearRight, leftToBaseStyle),
};

constexpr PaintedElement controls[] = {
    MOX_ELEMENT(CE_PushButton, Buttons::drawPushButton),
    MOX_ELEMENT(CE_PushButtonBevel, Buttons::drawBevel),
    MOX_ELEMENT(CE_PushButtonLabel, Buttons::drawLabel),
    MOX_ELEMENT(CE_CheckBox, CheckBoxes::drawCheckBox),
    MOX_ELEMENT(CE_CheckBoxLabel, CheckBoxes::drawLabel),
    MOX_ELEMENT(CE_RadioButton, CheckBoxes::drawRadioButton),
    MOX_ELEMENT(CE_RadioButtonLabel, CheckBoxes::drawLabel),
    MOX_ELEMENT(CE_TabBarTab, leftToBaseStyle),
    MOX_ELEMENT(CE_TabBarTabShape, Tabs::drawTabShape),
    MOX_ELEMENT(CE_TabBarTabLabel, Tabs::drawTabLabel),
    MOX_ELEMENT(CE_ProgressBar, leftToBaseStyle),
    MOX_ELEMENT(CE_ProgressBarGroove, ProgressBars::drawGroove),
    MOX_ELEMENT(CE_ProgressBarContents, ProgressBars::drawContents),
    MOX_ELEMENT(CE_ProgressBarLabel, ProgressBars::drawLabel),
    MOX_ELEMENT(CE_MenuItem, Menus::drawItem),
    MOX_ELEMENT(CE_MenuScroller, leftToBaseStyle),
    MOX_ELEMENT(CE_MenuVMargin, leftToBaseStyle),
    MOX_ELEMENT(CE_MenuHMargin, leftToBaseStyle),
    MOX_ELEMENT(CE_MenuTearoff, leftToBaseStyle),
    MOX_ELEMENT(CE_MenuEmptyArea, leftToBaseStyle),
    MOX_ELEMENT(CE_MenuBarItem, Menus::drawBarItem),
    MOX_ELEMENT(CE_MenuBarEmptyArea, Menus::drawBarEmptyArea),
    MOX_ELEMENT(CE_ToolButtonLabel, ToolButtons::drawLabel),
    MOX_ELEMENT(CE_Header, leftToBaseStyle),
    MOX_ELEMENT(CE_HeaderSection, leftToBaseStyle),
    MOX_ELEMENT(CE_HeaderLabel, leftToBaseStyle),
    MOX_ELEMENT(CE_ToolBoxTab, leftToBaseStyle),
    MOX_ELEMENT(CE_SizeGrip, leftToBaseStyle),
    MOX_ELEMENT(CE_Splitter, Splitters::drawHandle),
    MOX_ELEMENT(CE_RubberBand, Frames::drawRubberBand),
    MOX_ELEMENT(CE_DockWidgetTitle, DockWidgets::drawTitle),
    MOX_ELEMENT(CE_ScrollBarAddLine, ScrollBars::drawAddLine),
    MOX_ELEMENT(CE_ScrollBarSubLine, ScrollBars::drawSubLine),
    MOX_ELEMENT(CE_ScrollBarAddPage, leftToBaseStyle),
    MOX_ELEMENT(CE_ScrollBarSubPage, leftToBaseStyle),
    MOX_ELEMENT(CE_ScrollBarSlider, ScrollBars::drawHandle),
    MOX_ELEMENT(CE_ScrollBarFirst, leftToBaseStyle),
    MOX_ELEMENT(CE_ScrollBarLast, leftToBaseStyle),
    MOX_ELEMENT(CE_FocusFrame, leftToBaseStyle),
    MOX_ELEMENT(CE_ComboBoxLabel, ComboBoxes::drawLabel),
    MOX_ELEMENT(CE_ToolBar, ToolBars::drawToolBar),
    MOX_ELEMENT(CE_ToolBoxTabShape, ToolBoxes::drawTabShape),
    MOX_ELEMENT(CE_ToolBoxTabLabel, leftToBaseStyle),
    MOX_ELEMENT(CE_HeaderEmptyArea, leftToBaseStyle),
    MOX_ELEMENT(CE_ColumnViewGrip, ItemViews::drawColumnGrip),
    MOX_ELEMENT(CE_ItemViewItem, ItemViews::drawItem),
    MOX_ELEMENT(CE_ShapedFrame, Frames::drawShapedFrame),
};

constexpr PaintedElement complexControls[] = {
    MOX_ELEMENT(CC_SpinBox, SpinBoxes::drawSpinBox),
    MOX_ELEMENT(CC_ComboBox, ComboBoxes::drawComboBox),
    MOX_ELEMENT(CC_ScrollBar, ScrollBars::drawScrollBar),
    MOX_ELEMENT(CC_Slider, Sliders::drawSlider),
    MOX_ELEMENT(CC_ToolButton, ToolButtons::drawToolButton),
    MOX_ELEMENT(CC_TitleBar, TitleBars::drawTitleBar),
    MOX_ELEMENT(CC_Dial, leftToBaseStyle),
    MOX_ELEMENT(CC_GroupBox, leftToBaseStyle),
    MOX_ELEMENT(CC_MdiControls, leftToBaseStyle),
};

#undef MOX_ELEMENT

template <std::size_t Size>
constexpr bool standAtTheirIndices(const PaintedElement (&table)[Size])
{
    for (std::size_t i = 0; i < Size; ++i) {
        if (table[i].element != static_cast<int>(i)) {
            return false;
        }
    }
    return true;
}

static_assert(standAtTheirIndices(primitives));
static_assert(standAtTheirIndices(controls));
static_assert(standAtTheirIndices(complexControls));

template <std::size_t Size>
QVector<PaintedElement> asVector(const PaintedElement (&table)[Size])
{
    return QVector<PaintedElement>(std::begin(table), std::end(table));
}

} // namespace

const QVector<PaintedElement> &paintedPrimitives()
{
    static const QVector<PaintedElement> table = asVector(primitives);
    return table;
}

const QVector<PaintedElement> &paintedControls()
{
    static const QVector<PaintedElement> table = asVector(controls);
    return table;
}

const QVector<PaintedElement> &paintedComplexControls()
{
    static const QVector<PaintedElement> table = asVector(complexControls);
    return table;
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
