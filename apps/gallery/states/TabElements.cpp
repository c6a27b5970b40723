#include "samples/Symbols.h"
#include "states/Families.h"
#include "states/SampleMaking.h"

#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QToolBox>

namespace TARN::Gallery {

namespace {

using Condition = ElementCondition;
using Tab = QStyleOptionTab;

constexpr QSize closeSize(20, 20);
constexpr QSize standingSize(30, 48);
constexpr QSize frameSize(100, 50);

WidgetMaker tabBar(QTabBar::Shape shape)
{
    return making<QTabBar>([shape](QTabBar &bar) {
        bar.setShape(shape);
        for (int i = 0; i < 3; ++i) {
            bar.addTab(symbol("action.save"_s), sampleText);
        }
    });
}

WidgetMaker tabBar()
{
    return tabBar(QTabBar::RoundedNorth);
}

/// Returns the maker of the options of the tab in the middle of three.
OptionMaker tabOption()
{
    return plain<Tab>([](Tab &option) {
        const auto &bar = *static_cast<const QTabBar *>(option.styleObject);
        option.shape = bar.shape();
        option.text = bar.tabText(1);
        option.icon = bar.tabIcon(1);
        option.iconSize = bar.iconSize();
        option.position = Tab::Middle;
        option.documentMode = bar.documentMode();
    });
}

OptionMaker baseOption()
{
    return plain<QStyleOptionTabBarBase>([](QStyleOptionTabBarBase &option) {
        const auto &bar = *static_cast<const QTabBar *>(option.styleObject);
        option.shape = bar.shape();
        option.tabBarRect = option.rect;
        option.selectedTabRect = QRect(option.rect.topLeft(), option.rect.size() / 3);
    });
}

QWidget *closeButton()
{
    auto *bar = new QTabBar;
    bar->setTabsClosable(true);
    bar->addTab(sampleText);
    for (const auto side : {QTabBar::LeftSide, QTabBar::RightSide}) {
        if (QWidget *button = bar->tabButton(0, side)) {
            return button;
        }
    }
    return bar;
}

WidgetMaker tabWidget(QTabWidget::TabPosition position)
{
    return making<QTabWidget>([position](QTabWidget &widget) {
        widget.setTabPosition(position);
        widget.addTab(new QWidget, sampleText);
    });
}

/// Returns the maker of the options of the page's frame, the tabs standing over it.
OptionMaker tabWidgetOption()
{
    return describing<QTabWidget, QStyleOptionTabWidgetFrame>(
        [](QStyleOptionTabWidgetFrame &option) { option.lineWidth = 1; });
}

const ElementStates &tabStates()
{
    static const ElementStates interactions{ElementState(), Condition::Hover,
                                            Condition::KeyboardFocus, Condition::Disabled};
    static const ElementStates states =
        combined(interactions, {ElementState(), Condition::Selected});
    return states;
}

ElementSample shape(const char *title, const WidgetMaker &bar, const QSize &size = {100, 30})
{
    return {QStyle::CE_TabBarTabShape, title, tabStates(), bar, tabOption(), size};
}

OptionMaker toolBoxOption()
{
    return plain<QStyleOptionToolBox>([](QStyleOptionToolBox &option) {
        option.text = sampleText;
        option.icon = symbol("action.save"_s);
        option.position = QStyleOptionToolBox::Middle;
    });
}

} // namespace

ElementFamily tabFamily()
{
    const WidgetMaker highlighted = with("currentTabHighlighted", tabBar());
    return {QLatin1String("tab-states"),
            QLatin1String("Tab states"),
            {
                {QStyle::CE_TabBarTab, "Tab", tabStates(), tabBar(), tabOption()},
                {QStyle::CE_TabBarTab, "Highlighted", tabStates(), highlighted, tabOption()},
                shape("Small", with("smallTabSize", tabBar())),
                shape("South", tabBar(QTabBar::RoundedSouth)),
                shape("West", tabBar(QTabBar::RoundedWest), standingSize),
                shape("East, triangular", tabBar(QTabBar::TriangularEast), standingSize),
                {QStyle::CE_TabBarTabLabel, "Label", tabStates(), tabBar(), tabOption()},
                {QStyle::PE_IndicatorTabClose, "Close button", buttonStates(), closeButton, plain(),
                 closeSize},
                {QStyle::PE_FrameTabBarBase, "Base", passiveStates(), tabBar(), baseOption()},
                {QStyle::PE_IndicatorTabTear, "Torn start", restingStates(), tabBar(), tabOption(),
                 closeSize},
                {QStyle::PE_IndicatorTabTearRight, "Torn end", restingStates(), tabBar(),
                 tabOption(), closeSize},
                {QStyle::PE_FrameTabWidget, "Page", passiveStates(), tabWidget(QTabWidget::North),
                 tabWidgetOption(), frameSize},
            }};
}

ElementFamily toolBoxFamily()
{
    const ElementStates states = combined(buttonStates(), {ElementState(), Condition::Selected});
    const auto box = making<QToolBox>();
    return {QLatin1String("tool-box-states"),
            QLatin1String("Tool box states"),
            {
                {QStyle::CE_ToolBoxTab, "Tab", states, box, toolBoxOption()},
                {QStyle::CE_ToolBoxTabShape, "Shape", states, box, toolBoxOption()},
                {QStyle::CE_ToolBoxTabLabel, "Label", buttonStates(), box, toolBoxOption()},
            }};
}

} // namespace TARN::Gallery
