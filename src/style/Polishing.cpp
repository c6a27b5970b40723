#include "style/Polishing.h"

#include "style/BaseStyle.h"
#include "style/Properties.h"
#include "style/families/Buttons.h"
#include "style/families/Cards.h"
#include "style/families/ComboBoxes.h"
#include "style/families/Components.h"
#include "style/families/Inputs.h"
#include "style/families/ItemViews.h"
#include "style/families/Labels.h"
#include "style/families/ProgressBars.h"
#include "style/families/Sliders.h"
#include "style/families/Tabs.h"
#include "style/families/ToolBoxes.h"
#include "style/families/Windows.h"

#include <QtCore/QHash>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <iterator>

namespace TARN {

namespace {

void hearHovering(BaseStyle & /*style*/, QWidget &widget)
{
    widget.setAttribute(Qt::WA_Hover);
}

void allowShadow(BaseStyle & /*style*/, QWidget &widget)
{
    widget.setWindowFlag(Qt::NoDropShadowWindowHint, false);
}

/// The properties by which widgets of any class tell what they are.
constexpr const char *marks[] = {
    "CardWidgetBase_Header",       "CardWidgetBase_Contents", "CardWidgetBase_Footer",
    "CardWidgetBase_Title",        "CardWidgetBase_Subtitle", "ButtonGroupWidget_Container",
    "ColorButtonWidget_Container", "roundedPixmap",           "Pill_Font"};

bool declaresMark(const QMetaObject *type)
{
    // Looking for a property takes a walk through all properties of the class and its bases.
    static QHash<const QMetaObject *, bool> known;
    const auto found = known.constFind(type);
    if (found != known.constEnd()) {
        return *found;
    }
    const bool declares = std::any_of(std::begin(marks), std::end(marks), [type](const char *mark) {
        return type->indexOfProperty(mark) >= 0;
    });
    known.insert(type, declares);
    return declares;
}

bool mayBeMarked(const QWidget &widget)
{
    return !widget.dynamicPropertyNames().isEmpty() || declaresMark(widget.metaObject());
}

/// Stands for the class of every widget that has one of the marks.
constexpr char marked[] = "";

struct Rule
{
    /// The class that the rule is for; null when it is for every widget.
    const char *className;
    void (*apply)(BaseStyle &style, QWidget &widget);
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
    {"QStatusBar", Windows::polishStatusBar},
    {"QScrollArea", Windows::polishScrollArea},
    {"QMainWindow", Windows::polishMainWindow},
    {"QDockWidget", Windows::polishDockWidget},
    {marked, Cards::polishPart},
    {marked, Cards::polishTitle},
    {marked, Cards::polishSubtitle},
    {"TARN::Components::CardWidget", Cards::polishCard},
    {"QComboBox", ComboBoxes::polishDelegate},
    {marked, Components::polishContainer},
    {"TARN::Components::ButtonGroupWidget", Components::polishButtonGroup},
    {marked, Components::polishRoundedPixmap},
    {marked, Components::polishPill},
    {"TARN::PeriodicTable::PeriodicTableView", Components::polishPeriodicTable},
    {"TARN::Components::RangeSlider", Sliders::polishRangeSlider},
    {"QCommandLinkButton", Buttons::polishCommandLink},
    {nullptr, allowShadow},
    {"QToolBoxButton", ToolBoxes::polishButton},
    {"QToolBox", ToolBoxes::polishToolBox},
    {"QLineEditIconButton", Inputs::polishClearButton},
    // Alt is heard where key events end up when nobody takes them.
    {nullptr, Windows::polishWindow},
};

} // namespace

void polishWidget(BaseStyle &style, QWidget &widget)
{
    for (const Rule &rule : rules) {
        const bool applies = rule.className == marked
                                 ? mayBeMarked(widget)
                                 : !rule.className || isA(&widget, rule.className);
        if (applies) {
            rule.apply(style, widget);
        }
    }
}

void setPolishedFont(QWidget &widget, const QFont &font)
{
    widget.setProperty("_q_styleSheetWidgetFont", font);
    widget.setFont(font);
}

void unpolishWidget(QWidget &widget)
{
    if (isA(&widget, "QTabBar") || isA(&widget, "QGroupBox")) {
        widget.setAttribute(Qt::WA_Hover, false);
    }
}

} // namespace TARN
