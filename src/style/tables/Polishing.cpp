#include "style/tables/Polishing.h"

#include "style/asking/Properties.h"
#include "style/families/Cards.h"
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
#include "style/families/tabs/TabSizes.h"

#include <QtWidgets/QWidget>

#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <vector>

namespace TARN {

namespace {

void hearHovering(QWidget &widget)
{
    widget.setAttribute(Qt::WA_Hover);
}

void allowShadow(QWidget &widget)
{
    widget.setWindowFlag(Qt::NoDropShadowWindowHint, false);
}

/// The properties by which widgets of any class tell what they are.
constexpr const char *marks[] = {
    "CardWidgetBase_Header",       "CardWidgetBase_Contents", "CardWidgetBase_Footer",
    "CardWidgetBase_Title",        "CardWidgetBase_Subtitle", "ButtonGroupWidget_Container",
    "ColorButtonWidget_Container", "roundedPixmap",           "Pill_Font"};

/// Stands for the class of every widget that has one of the marks.
constexpr char marked[] = "";

struct Rule
{
    /// The class that the rule is for; null when it is for every widget.
    const char *className;
    void (*apply)(QWidget &widget);
    /// Of those that have the style work on: it hears the widget, or owns what the widget gets.
    void (*applyFor)(QStyle &style, QWidget &widget) = nullptr;
};

// In the order in which they apply: later rules see what earlier ones did.
constexpr Rule rules[] = {
    {"QProgressBar", ProgressBars::polish},
    {"QAbstractItemView", ItemViews::polishPalette},
    {"QAbstractItemView", ItemViews::polishItems},
    {"QLabel", Labels::polishDisabledText},
    {"QTabBar", hearHovering},
    {"QGroupBox", hearHovering},
    {"QTabWidget", Tabs::polishFont},
    {"QTabBar", Tabs::polishFont},
    {"QStatusBar", StatusBars::polish},
    {"QScrollArea", Windows::polishScrollArea},
    {"QMainWindow", Windows::polishMainWindow},
    {"QDockWidget", DockWidgets::polish},
    {marked, Cards::polishPart},
    {marked, Cards::polishTitle},
    {marked, Cards::polishSubtitle},
    {"TARN::Components::CardWidget", Cards::polishCard},
    {"QComboBox", nullptr, ComboBoxes::polishDelegate},
    {marked, Components::polishContainer},
    {"TARN::Components::ButtonGroupWidget", Components::polishButtonGroup},
    {marked, Components::polishRoundedPixmap},
    {marked, Components::polishPill},
    {"TARN::PeriodicTable::PeriodicTableView", Components::polishPeriodicTable},
    {"TARN::Components::RangeSlider", Sliders::polishRangeSlider},
    {"QCommandLinkButton", nullptr, Buttons::polishCommandLink},
    {nullptr, allowShadow},
    {"QToolBoxButton", ToolBoxes::polishButton},
    {"QToolBox", ToolBoxes::polishToolBox},
    {"QLineEditIconButton", nullptr, Inputs::polishClearButton},
    // Alt is heard where key events end up when nobody takes them.
    {nullptr, nullptr, Windows::polishWindow},
};

/// What of the rules is the same for all widgets of a class.
struct ClassRules
{
    std::vector<const Rule *> rules; ///< those that the class does not rule out, in order
    bool declaresMark = false;
};

bool isMarkRule(const Rule &rule)
{
    return rule.className == marked;
}

ClassRules findClassRules(const QWidget &widget)
{
    ClassRules result;
    for (const Rule &rule : rules) {
        if (!rule.className || isMarkRule(rule) || isA(&widget, rule.className)) {
            result.rules.push_back(&rule);
        }
    }
    result.declaresMark = std::any_of(std::begin(marks), std::end(marks), [&](const char *mark) {
        return widget.metaObject()->indexOfProperty(mark) >= 0;
    });
    return result;
}

const ClassRules &classRules(const QWidget &widget)
{
    // Comparing the names of a class and its bases with those of all rules takes longer than most
    // rules themselves.
    static std::unordered_map<const QMetaObject *, ClassRules> known;
    auto found = known.find(widget.metaObject());
    if (found == known.end()) {
        found = known.emplace(widget.metaObject(), findClassRules(widget)).first;
    }
    return found->second;
}

} // namespace

void polishWidget(QStyle &style, QWidget &widget)
{
    const ClassRules &ofClass = classRules(widget);
    for (const Rule *rule : ofClass.rules) {
        const bool applies =
            !isMarkRule(*rule) || ofClass.declaresMark || !widget.dynamicPropertyNames().isEmpty();
        if (applies) {
            rule->apply ? rule->apply(widget) : rule->applyFor(style, widget);
        }
    }
}

void unpolishWidget(QWidget &widget)
{
    if (isA(&widget, "QTabBar") || isA(&widget, "QGroupBox")) {
        widget.setAttribute(Qt::WA_Hover, false);
    }
}

} // namespace TARN
