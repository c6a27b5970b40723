#include "style/tables/Metrics.h"

#include "catalogue/Names.h"
#include "style/asking/Properties.h"
#include "style/families/item_views/Headers.h"
#include "style/families/item_views/ItemViews.h"

#include <QtGui/QFontMetrics>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <iterator>

namespace TARN {

namespace {

/// What a metric is without a widget; the size that icons and buttons of tabs have then.
constexpr int tabIconSize = 16;

int separatorExtent(const QWidget *widget)
{
    return isSet(widget, Property::Small) ? 1 : 6;
}

int indicatorWidth(const QWidget *widget)
{
    return isSet(widget, Property::Switch) ? 28 : 14;
}

int indicatorHeight(const QWidget *widget)
{
    return isSet(widget, Property::Switch) ? 15 : 14;
}

/// Icons and buttons of tabs grow with the text.
int tabDecorationExtent(const QWidget *widget)
{
    return widget ? QFontMetrics(widget->font()).height() : tabIconSize;
}

struct MetricRow
{
    int metric;
    int value;
    int (*compute)(const QWidget *widget) = nullptr;
    Mode leastMode = Mode::Default;
};

constexpr MetricRow metricTable[] = {
    {QStyle::PM_MenuButtonIndicator, 12},
    {QStyle::PM_ScrollBarExtent, 16},
    {QStyle::PM_SliderThickness, 15},
    {QStyle::PM_SliderLength, 14},
    {QStyle::PM_SliderTickmarkOffset, 5},
    {QStyle::PM_DockWidgetSeparatorExtent, 0, separatorExtent},
    {QStyle::PM_TabBarTabOverlap, 1},
    {QStyle::PM_TabBarTabVSpace, 10},
    {QStyle::PM_TabBarBaseOverlap, 1},
    {QStyle::PM_SplitterWidth, 0, separatorExtent},
    {QStyle::PM_IndicatorWidth, 0, indicatorWidth},
    {QStyle::PM_IndicatorHeight, 0, indicatorHeight},
    {QStyle::PM_TabBarTabShiftVertical, 0},
    {QStyle::PM_ToolBarFrameWidth, 0},
    {QStyle::PM_ToolBarIconSize, 24},
    {QStyle::PM_ToolTipLabelFrameWidth, 6},
    {QStyle::PM_CheckBoxLabelSpacing, 6},
    {QStyle::PM_RadioButtonLabelSpacing, 6},
    {QStyle::PM_TabBarIconSize, 0, tabDecorationExtent},
    {QStyle::PM_TabCloseIndicatorWidth, 0, tabDecorationExtent},
    {QStyle::PM_TabCloseIndicatorHeight, 0, tabDecorationExtent},
    {QStyle::PM_MessageBoxIconSize, 32},
    {QStyle::PM_DockWidgetTitleBarButtonMargin, 3},
    {ItemViews::listViewPaddingMetric, 5},
    {QStyle::PM_HeaderMarkSize, Headers::markSize, nullptr, Mode::Complete},
};

int never(const QStyleOption * /*option*/, QStyleHintReturn * /*returnData*/)
{
    return 0;
}

int gridLineColor(const QStyleOption *option, QStyleHintReturn * /*returnData*/)
{
    const bool enabled = !option || option->state.testFlag(QStyle::State_Enabled);
    const QColor color = themeColor(ColorName::BackgroundSubLevel1Color, enabled);
    return static_cast<int>(color.rgba());
}

/// The frames of windows have no shape of their own.
int windowFrameMask(const QStyleOption *option, QStyleHintReturn *returnData)
{
    auto *mask = qstyleoption_cast<QStyleHintReturnMask *>(returnData);
    if (mask && qstyleoption_cast<const QStyleOptionTitleBar *>(option)) {
        mask->region = QRegion();
    }
    return 1;
}

struct HintRow
{
    QStyle::StyleHint hint;
    int (*answer)(const QStyleOption *option, QStyleHintReturn *returnData);
    Mode leastMode = Mode::Default;
};

constexpr HintRow hintTable[] = {
    {QStyle::SH_EtchDisabledText, never},
    {QStyle::SH_DitherDisabledText, never},
    // A combo box opens a plain list, never one that looks like a menu.
    {QStyle::SH_ComboBox_Popup, never},
    {QStyle::SH_Table_GridLineColor, gridLineColor},
    {QStyle::SH_WindowFrame_Mask, windowFrameMask},
    {QStyle::SH_DialogButtonBox_ButtonsHaveIcons, never},
};

} // namespace

std::optional<int> pixelMetricOf(int metric, const QWidget *widget, Mode mode)
{
    const auto *row = std::find_if(std::begin(metricTable), std::end(metricTable),
                                   [metric, mode](const MetricRow &each) {
                                       return each.metric == metric && each.leastMode <= mode;
                                   });
    if (row == std::end(metricTable)) {
        return std::nullopt;
    }
    return row->compute ? row->compute(widget) : row->value;
}

std::optional<int> styleHintOf(QStyle::StyleHint hint, const QStyleOption *option,
                               QStyleHintReturn *returnData, Mode mode)
{
    const auto *row =
        std::find_if(std::begin(hintTable), std::end(hintTable), [hint, mode](const HintRow &each) {
            return each.hint == hint && each.leastMode <= mode;
        });
    if (row == std::end(hintTable)) {
        return std::nullopt;
    }
    return row->answer(option, returnData);
}

} // namespace TARN
