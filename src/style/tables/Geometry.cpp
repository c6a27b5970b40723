#include "style/tables/Geometry.h"

#include "style/families/CheckBoxes.h"
#include "style/families/ComboBoxes.h"
#include "style/families/GroupBoxes.h"
#include "style/families/Inputs.h"
#include "style/families/ProgressBars.h"
#include "style/families/ScrollBars.h"
#include "style/families/Sliders.h"
#include "style/families/SpinBoxes.h"
#include "style/families/ToolBoxes.h"
#include "style/families/buttons/PushButtons.h"
#include "style/families/buttons/ToolButtons.h"
#include "style/families/item_views/Headers.h"
#include "style/families/item_views/ItemViews.h"
#include "style/families/tabs/TabSizes.h"

#include <algorithm>
#include <iterator>

namespace TARN {

namespace {

template <typename Element, typename Rule>
struct Row
{
    constexpr Row(Element ofElement, Rule rule)
        : Row(ofElement, rule, rule)
    {
    }
    constexpr Row(Element ofElement, Rule byDefault, Rule complete)
        : element(ofElement)
        , ofModes{byDefault, complete}
    {
    }

    Element element;
    Rule ofModes[2];
};

constexpr std::nullptr_t leftToBaseStyle = nullptr;

// An element with one rule has it in both modes; one with two, the second in the complete mode.

constexpr Row<QStyle::SubElement, SubElementRule> subElementTable[] = {
    {QStyle::SE_CheckBoxIndicator, CheckBoxes::indicatorRect},
    {QStyle::SE_CheckBoxContents, CheckBoxes::contentsRect},
    {QStyle::SE_TabWidgetTabBar, Tabs::tabBarRect},
    {QStyle::SE_ItemViewItemCheckIndicator, ItemViews::decorationRect},
    {QStyle::SE_ItemViewItemDecoration, ItemViews::decorationRect},
    {QStyle::SE_ItemViewItemText, ItemViews::textRect},
    {QStyle::SE_HeaderLabel, nullptr, Headers::labelRect},
    {QStyle::SE_HeaderArrow, nullptr, Headers::arrowRect},
    {QStyle::SE_TabBarTabRightButton, Tabs::rightButtonRect},
    {QStyle::SE_TabBarTabText, Tabs::textRect},
    {QStyle::SE_ToolBoxTabContents, nullptr, ToolBoxes::contentsRect},
};

constexpr Row<QStyle::ComplexControl, SubControlRule> subControlTable[] = {
    {QStyle::CC_SpinBox, SpinBoxes::subControlRect},
    {QStyle::CC_ComboBox, ComboBoxes::subControlRect, ComboBoxes::subControlRectWithList},
    {QStyle::CC_ScrollBar, ScrollBars::subControlRect},
    {QStyle::CC_Slider, Sliders::subControlRect},
    {QStyle::CC_GroupBox, GroupBoxes::subControlRect, GroupBoxes::boundedSubControlRect},
};

constexpr Row<QStyle::ContentsType, ContentsRule> contentsTable[] = {
    {QStyle::CT_PushButton, Buttons::pushButtonSize},
    {QStyle::CT_ToolButton, ToolButtons::toolButtonSize},
    {QStyle::CT_ComboBox, ComboBoxes::comboBoxSize},
    {QStyle::CT_SpinBox, leftToBaseStyle, SpinBoxes::spinBoxSize},
    {QStyle::CT_LineEdit, Inputs::lineEditSize, Inputs::lineEditSizeInside},
    {QStyle::CT_ProgressBar, ProgressBars::progressBarSize},
    {QStyle::CT_TabBarTab, Tabs::tabSize},
    {QStyle::CT_Slider, Sliders::sliderSize},
    {QStyle::CT_ScrollBar, ScrollBars::scrollBarSize},
    {QStyle::CT_ItemViewItem, ItemViews::itemSize},
    {QStyle::CT_HeaderSection, nullptr, Headers::sectionSize},
};

template <typename Element, typename Rule, std::size_t Size>
Rule find(const Row<Element, Rule> (&table)[Size], Element element, Mode mode)
{
    const auto *row = std::find_if(
        std::begin(table), std::end(table),
        [element](const Row<Element, Rule> &candidate) { return candidate.element == element; });
    return row == std::end(table) ? nullptr : row->ofModes[static_cast<int>(mode)];
}

} // namespace

SubElementRule subElementRule(QStyle::SubElement element, Mode mode)
{
    return find(subElementTable, element, mode);
}

SubControlRule subControlRule(QStyle::ComplexControl control, Mode mode)
{
    return find(subControlTable, control, mode);
}

ContentsRule contentsRule(QStyle::ContentsType type, Mode mode)
{
    return find(contentsTable, type, mode);
}

} // namespace TARN
