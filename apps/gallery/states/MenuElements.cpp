#include "samples/Symbols.h"
#include "states/Families.h"
#include "states/SampleMaking.h"

#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

namespace TARN::Gallery {

namespace {

using Condition = ElementCondition;
using MenuItem = QStyleOptionMenuItem;

/// Wide enough for the fonts of all themes.
constexpr int menuWidth = 160;
constexpr QSize entrySize(menuWidth, 28);
constexpr int iconRoom = 20;
constexpr int shortcutRoom = 56;

/// Returns the maker of the options of an entry.
OptionMaker entry(const std::function<void(MenuItem &)> &prepare = {})
{
    return plain<MenuItem>([prepare](MenuItem &option) {
        option.menuItemType = MenuItem::Normal;
        option.text = sampleText;
        option.menuRect = option.rect;
        option.maxIconWidth = iconRoom;
        if (prepare) {
            prepare(option);
        }
    });
}

OptionMaker entryOf(MenuItem::MenuItemType type)
{
    return entry([type](MenuItem &option) {
        option.menuItemType = type;
        option.tabWidth = type == MenuItem::Separator ? 0 : shortcutRoom;
    });
}

OptionMaker entryWithIcon()
{
    return entry([](MenuItem &option) {
        option.icon = symbol("action.save"_s);
        option.text = sampleText + "\tCtrl+S"_s;
        option.tabWidth = shortcutRoom;
    });
}

OptionMaker checkableEntry(MenuItem::CheckType type, bool isChecked)
{
    return entry([type, isChecked](MenuItem &option) {
        option.checkType = type;
        option.checked = isChecked;
        option.menuHasCheckableItems = true;
    });
}

OptionMaker titledSection()
{
    return entry([](MenuItem &option) { option.menuItemType = MenuItem::Separator; });
}

OptionMaker plainSeparator()
{
    return entry([](MenuItem &option) {
        option.menuItemType = MenuItem::Separator;
        option.text.clear();
    });
}

QVector<ElementSample> menuParts()
{
    const auto menu = making<QMenu>();
    const QSize thin(menuWidth, 10);
    return {
        {QStyle::PE_PanelMenu, "Panel", restingStates(), menu, plain(), QSize(menuWidth, 40)},
        {QStyle::PE_FrameMenu, "Frame", restingStates(), menu, plain<QStyleOptionFrame>(),
         QSize(menuWidth, 40)},
        {QStyle::PE_IndicatorMenuCheckMark, "Check mark", passiveStates(), menu, entry(),
         QSize(20, 20)},
        {QStyle::CE_MenuScroller, "Scroller", passiveStates(), menu, entryOf(MenuItem::Scroller),
         QSize(menuWidth, 16)},
        {QStyle::CE_MenuScroller, "Scroller, down", passiveStates(), menu,
         entry([](MenuItem &option) {
             option.menuItemType = MenuItem::Scroller;
             option.state |= QStyle::State_DownArrow;
         }),
         QSize(menuWidth, 16)},
        {QStyle::CE_MenuTearoff,
         "Tear-off line",
         {ElementState(), Condition::Highlighted, Condition::Disabled},
         menu,
         entryOf(MenuItem::TearOff),
         thin},
        {QStyle::CE_MenuVMargin, "Margin above", restingStates(), menu, entryOf(MenuItem::Margin),
         thin},
        {QStyle::CE_MenuHMargin, "Margin beside", restingStates(), menu, entryOf(MenuItem::Margin),
         thin},
        {QStyle::CE_MenuEmptyArea, "Empty area", restingStates(), menu,
         entryOf(MenuItem::EmptyArea), thin},
    };
}

QVector<ElementSample> menuBarParts()
{
    const auto bar = making<QMenuBar>();
    const ElementStates states{ElementState(), Condition::Hover, Condition::Pressed,
                               Condition::Highlighted, Condition::Disabled};
    return {
        {QStyle::CE_MenuBarItem, "Menu of a bar", states, bar, entry(), QSize(60, 28)},
        {QStyle::CE_MenuBarItem, "Icon in a bar", states, bar, entry([](MenuItem &option) {
             option.icon = symbol("action.save"_s);
             option.text.clear();
         }),
         QSize(40, 28)},
        {QStyle::CE_MenuBarEmptyArea, "Rest of a bar", passiveStates(), bar,
         entryOf(MenuItem::EmptyArea), QSize(menuWidth, 28)},
        {QStyle::PE_PanelMenuBar, "Panel of a bar", restingStates(), bar,
         plain<QStyleOptionFrame>(), QSize(menuWidth, 28)},
    };
}

} // namespace

ElementFamily menuFamily()
{
    const auto menu = making<QMenu>();
    const ElementStates states{ElementState(), Condition::Highlighted, Condition::Disabled};
    const auto item = [&](const char *title, const OptionMaker &option) {
        return ElementSample{QStyle::CE_MenuItem, title, states, menu, option, entrySize};
    };
    return {QLatin1String("menu-states"), QLatin1String("Menu states"),
            QVector<ElementSample>{
                item("Entry", entry()),
                item("Entry with icon and shortcut", entryWithIcon()),
                item("Menu in the menu", entryOf(MenuItem::SubMenu)),
                item("Default entry", entryOf(MenuItem::DefaultItem)),
                item("Option", checkableEntry(MenuItem::NonExclusive, false)),
                item("Option that is on", checkableEntry(MenuItem::NonExclusive, true)),
                item("Choice", checkableEntry(MenuItem::Exclusive, false)),
                item("Choice that is taken", checkableEntry(MenuItem::Exclusive, true)),
                {QStyle::CE_MenuItem, "Entry of a combo box", states,
                 with("_q_isComboBoxPopupItem", menu), checkableEntry(MenuItem::Exclusive, true),
                 entrySize},
                {QStyle::CE_MenuItem, "Separator", restingStates(), menu, plainSeparator(),
                 QSize(menuWidth, 8)},
                {QStyle::CE_MenuItem, "Separator with title", restingStates(), menu,
                 titledSection(), entrySize},
            } + menuParts() +
                menuBarParts()};
}

} // namespace TARN::Gallery
