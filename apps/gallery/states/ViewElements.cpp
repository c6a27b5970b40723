#include "samples/Symbols.h"
#include "states/Families.h"
#include "states/SampleMaking.h"

#include <QtWidgets/QColumnView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QListView>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTreeView>

namespace TARN::Gallery {

namespace {

using Condition = ElementCondition;
using Item = QStyleOptionViewItem;
using Header = QStyleOptionHeader;

constexpr QSize squareSize(20, 20);
constexpr QSize itemSize(100, 26);

/// Returns the maker of the options of an item of a view, which its delegate would set.
template <typename View>
OptionMaker item(const std::function<void(Item &)> &prepare = {})
{
    return [prepare](const QWidget &widget) {
        const auto &view = static_cast<const View &>(widget);
        auto option = std::make_shared<Item>((view.*Opened<View>::viewDescription())());
        option->rect = view.rect();
        option->widget = &view;
        option->text = sampleText;
        option->icon = symbol("action.save"_s);
        option->decorationSize = QSize(16, 16);
        option->features = Item::HasDisplay | Item::HasDecoration;
        option->viewItemPosition = Item::OnlyOne;
        option->showDecorationSelected = true;
        if (prepare) {
            prepare(*option);
        }
        return option;
    };
}

void makeAlternate(Item &option)
{
    option.features |= Item::Alternate;
}

OptionMaker checkableItem(Qt::CheckState state)
{
    return item<QListView>([state](Item &option) {
        option.features |= Item::HasCheckIndicator;
        option.checkState = state;
        option.state |= state == Qt::Checked ? QStyle::State_On : QStyle::State_Off;
    });
}

/// Returns the list of a combo box.
QWidget *comboBoxList()
{
    return (new QComboBox)->view();
}

OptionMaker branch(QStyle::State state)
{
    return plain<QStyleOption>([state](QStyleOption &option) { option.state |= state; });
}

const ElementStates &itemStates()
{
    static const ElementStates interactions{ElementState(), Condition::Hover,
                                            Condition::KeyboardFocus, Condition::Disabled};
    static const ElementStates states =
        combined(interactions, {ElementState(), Condition::Selected});
    return states;
}

QVector<ElementSample> viewParts()
{
    const auto column = making<QColumnView>();
    const auto tree = making<QTreeView>();
    const ElementStates states = combined(passiveStates(), {ElementState(), Condition::Selected});
    const ElementStates branchStates =
        combined(hoverableStates(), {ElementState(), Condition::Selected});
    return {
        {QStyle::PE_IndicatorColumnViewArrow, "Arrow of a column view", states, column,
         item<QColumnView>(), squareSize},
        {QStyle::CE_ColumnViewGrip, "Grip of a column view", passiveStates(), column, plain(),
         squareSize},
        {QStyle::PE_IndicatorBranch, "Closed branch", branchStates, tree,
         branch(QStyle::State_Item | QStyle::State_Children), squareSize},
        {QStyle::PE_IndicatorBranch, "Open branch", branchStates, tree,
         branch(QStyle::State_Item | QStyle::State_Children | QStyle::State_Open), squareSize},
        {QStyle::PE_IndicatorItemViewItemCheck, "Check box of an item",
         combined(hoverableStates(), {ElementState(), Condition::Checked}), tree, item<QTreeView>(),
         squareSize},
        {QStyle::PE_IndicatorItemViewItemDrop, "Drop place", restingStates(), tree,
         item<QTreeView>()},
    };
}

OptionMaker headerOption(Header::SortIndicator sorting, QStyle::State state)
{
    return describing<QHeaderView, Header>([=](Header &option) {
        option.section = 0;
        option.text = sampleText;
        option.textAlignment =
            static_cast<const QHeaderView *>(option.styleObject)->defaultAlignment();
        option.position = Header::Middle;
        option.sortIndicator = sorting;
        option.state |= state;
    });
}

} // namespace

ElementFamily itemViewFamily()
{
    const auto list = making<QListView>();
    const auto tree = making<QTreeView>();
    const auto table = making<QTableView>();
    return {
        QLatin1String("item-view-states"), QLatin1String("Item view states"),
        QVector<ElementSample>{
            {QStyle::CE_ItemViewItem, "Item of a list", itemStates(), list, item<QListView>(),
             itemSize},
            {QStyle::CE_ItemViewItem, "Item of a tree", itemStates(), tree, item<QTreeView>(),
             itemSize},
            {QStyle::CE_ItemViewItem, "Item of a table", itemStates(), table, item<QTableView>(),
             itemSize},
            {QStyle::CE_ItemViewItem, "Item of a combo box", itemStates(), comboBoxList,
             item<QListView>(), itemSize},
            {QStyle::CE_ItemViewItem, "Unchecked item", passiveStates(), list,
             checkableItem(Qt::Unchecked), itemSize},
            {QStyle::CE_ItemViewItem, "Checked item", passiveStates(), list,
             checkableItem(Qt::Checked), itemSize},
            {QStyle::PE_PanelItemViewItem, "Panel of an item", itemStates(), tree,
             item<QTreeView>(), itemSize},
            {QStyle::PE_PanelItemViewItem, "Panel of every other item", passiveStates(), tree,
             item<QTreeView>(makeAlternate), itemSize},
            {QStyle::PE_PanelItemViewRow, "Row", itemStates(), tree, item<QTreeView>(), itemSize},
            {QStyle::PE_PanelItemViewRow, "Every other row", passiveStates(), tree,
             item<QTreeView>(makeAlternate), itemSize},
        } + viewParts()};
}

ElementFamily headerFamily()
{
    const auto lying = [] { return new QHeaderView(Qt::Horizontal); };
    const auto standing = [] { return new QHeaderView(Qt::Vertical); };
    const OptionMaker plainHeader = headerOption(Header::None, QStyle::State_Horizontal);
    const OptionMaker sorted = headerOption(Header::SortDown, QStyle::State_Horizontal);
    return {
        QLatin1String("header-states"),
        QLatin1String("Header states"),
        {
            {QStyle::CE_Header, "Header", buttonStates(), lying, plainHeader},
            {QStyle::CE_Header, "Sorted header", buttonStates(), lying, sorted},
            {QStyle::CE_Header, "Header sorted the other way", passiveStates(), lying,
             headerOption(Header::SortUp, QStyle::State_Horizontal)},
            {QStyle::CE_Header, "Vertical header", buttonStates(), standing,
             headerOption(Header::None, QStyle::State_None)},
            {QStyle::CE_HeaderSection, "Section", buttonStates(), lying, plainHeader},
            {QStyle::CE_HeaderLabel, "Label", passiveStates(), lying, plainHeader},
            {QStyle::CE_HeaderEmptyArea, "Rest of the header", passiveStates(), lying, plainHeader},
            {QStyle::PE_IndicatorHeaderArrow, "Arrow", passiveStates(), lying, sorted, squareSize},
        }};
}

} // namespace TARN::Gallery
