#include "style/tables/Polishing.h"

#include "style/asking/Classes.h"
#include "style/asking/Properties.h"
#include "style/families/Calendars.h"
#include "style/families/Cards.h"
#include "style/families/ComboBoxLists.h"
#include "style/families/ComboBoxes.h"
#include "style/families/Components.h"
#include "style/families/DockWidgets.h"
#include "style/families/Inputs.h"
#include "style/families/Labels.h"
#include "style/families/ProgressBars.h"
#include "style/families/Sliders.h"
#include "style/families/StatusBars.h"
#include "style/families/ToolBoxes.h"
#include "style/families/Windows.h"
#include "style/families/buttons/PushButtons.h"
#include "style/families/item_views/ItemViews.h"
#include "style/families/item_views/Selections.h"
#include "style/families/tabs/TabSizes.h"
#include "style/polishing/PolishedWidgets.h"
#include "style/polishing/Polishing.h"
#include "style/watching/WeekEnds.h"

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QCommandLinkButton>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QTabBar>

#include <optional>

namespace TARN {

namespace {

void hearHovering(Polishing &polishing)
{
    polishing.setAttribute(Qt::WA_Hover);
}

void allowShadow(Polishing &polishing)
{
    QWidget &widget = polishing.widget();
    const bool hadNone = widget.windowFlags().testFlag(Qt::NoDropShadowWindowHint);
    widget.setWindowFlag(Qt::NoDropShadowWindowHint, false);
    if (hadNone) {
        polishing.addUndo([&widget] { widget.setWindowFlag(Qt::NoDropShadowWindowHint); });
    }
}

/// The widgets that a rule is for.
struct Bearers
{
    bool (*areSo)(const QObject *widget) = nullptr;
    const char *className = nullptr;
    std::optional<Property> mark;
};

constexpr Bearers allWidgets;

template <typename Widget>
bool isOfClass(const QObject *widget)
{
    return qobject_cast<const Widget *>(widget);
}

/// Those of a class of which the rule uses what only it has.
template <typename Widget>
constexpr Bearers ofClass()
{
    return {isOfClass<Widget>, nullptr, {}};
}

/// Those of a class, and those that say so.
template <typename Widget>
constexpr Bearers like()
{
    return {isLike<Widget>, nullptr, {}};
}

/// Those that say that they are of a class, whatever they are.
constexpr Bearers named(const char *className)
{
    return {nullptr, className, {}};
}

/// Those of any class that tell what they are by a property.
constexpr Bearers marked(Property mark)
{
    return {nullptr, nullptr, mark};
}

enum class Modes { Both, Default, Complete };

struct Rule
{
    Bearers bearers;
    void (*apply)(Polishing &polishing);
    Modes modes = Modes::Both;
};

// In the order in which they apply: later rules see what earlier ones did.
constexpr Rule rules[] = {
    {ofClass<QProgressBar>(), ProgressBars::polish},
    {like<QAbstractItemView>(), ItemViews::polishPalette, Modes::Default},
    {like<QAbstractItemView>(), ItemViews::polishColors, Modes::Complete},
    {like<QAbstractItemView>(), ItemViews::polishItems},
    {like<QAbstractItemView>(), ItemViews::hideFocus, Modes::Default},
    {like<QAbstractItemView>(), ItemViews::hideFocusOfList, Modes::Complete},
    {ofClass<QAbstractItemView>(), ComboBoxes::polishList, Modes::Complete},
    {ofClass<QCalendarWidget>(), tintWeekEnds, Modes::Complete},
    {{Calendars::isNavigationBar, nullptr, {}}, Calendars::polishNavigationBar, Modes::Complete},
    {named("QLabel"), Labels::polishDisabledText, Modes::Default},
    {like<QTabBar>(), hearHovering},
    {named("QGroupBox"), hearHovering},
    {named("QTabWidget"), Tabs::polishFont, Modes::Default},
    {named("QTabBar"), Tabs::polishFont, Modes::Default},
    {named("QTabBar"), Tabs::polishSizedFont, Modes::Complete},
    {named("QStatusBar"), StatusBars::polish},
    {named("QStatusBar"), StatusBars::polishLater, Modes::Complete},
    {like<QScrollArea>(), Windows::polishScrollArea},
    {like<QMainWindow>(), Windows::polishMainWindow},
    {like<QDockWidget>(), DockWidgets::polish},
    {marked(Property::CardHeader), Cards::polishPart},
    {marked(Property::CardContents), Cards::polishPart},
    {marked(Property::CardFooter), Cards::polishPart},
    {marked(Property::CardTitle), Cards::polishTitle},
    {marked(Property::CardSubtitle), Cards::polishSubtitle},
    {named("TARN::Components::CardWidget"), Cards::polishCard},
    {ofClass<QComboBox>(), ComboBoxes::polishDelegate, Modes::Default},
    {marked(Property::ButtonGroupContainer), Components::polishContainer},
    {marked(Property::ColorButtonContainer), Components::polishContainer},
    {named("TARN::Components::ButtonGroupWidget"), Components::polishButtonGroup},
    {allWidgets, Components::polishRoundedPixmap},
    {marked(Property::PillFont), Components::polishPill},
    {named("TARN::PeriodicTable::PeriodicTableView"), Components::polishPeriodicTable},
    {named("TARN::Components::RangeSlider"), Sliders::polishRangeSlider},
    {like<QCommandLinkButton>(), Buttons::polishCommandLink},
    {allWidgets, allowShadow},
    {named("QToolBoxButton"), ToolBoxes::polishButton},
    {named("QToolBox"), ToolBoxes::polishToolBox},
    {named("QLineEditIconButton"), Inputs::polishClearButton},
    // Alt is heard where key events end up when nobody takes them.
    {allWidgets, Windows::polishWindow},
};

bool concerns(const Rule &rule, const QWidget &widget)
{
    const Bearers &bearers = rule.bearers;
    if (bearers.areSo) {
        return bearers.areSo(&widget);
    }
    if (bearers.className) {
        return isA(&widget, bearers.className);
    }
    return !bearers.mark || isSet(&widget, *bearers.mark);
}

void applyRules(Polishing &polishing, Modes otherMode)
{
    for (const Rule &rule : rules) {
        if (rule.modes != otherMode && concerns(rule, polishing.widget())) {
            rule.apply(polishing);
        }
    }
}

} // namespace

void polishWidget(QStyle &style, QWidget &widget, Mode mode, PolishedWidgets &polished)
{
    if (mode == Mode::Default) {
        Polishing polishing(style, widget, nullptr);
        applyRules(polishing, Modes::Complete);
        return;
    }
    Undo undo;
    Polishing polishing(style, widget, &undo);
    applyRules(polishing, Modes::Default);
    polished.add(widget, undo);
}

void repolishWidgets(QStyle &style, Mode mode, PolishedWidgets &polished)
{
    const QList<QWidget *> widgets = polished.all();
    for (QWidget *widget : widgets) {
        polished.takeBack(*widget);
        polishWidget(style, *widget, mode, polished);
    }
}

void unpolishWidget(QWidget &widget, Mode mode, PolishedWidgets &polished)
{
    if (mode == Mode::Complete) {
        polished.takeBack(widget);
    } else if (isLike<QTabBar>(&widget) || isA(&widget, "QGroupBox")) {
        widget.setAttribute(Qt::WA_Hover, false);
    }
}

} // namespace TARN
