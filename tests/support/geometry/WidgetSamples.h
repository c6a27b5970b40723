#pragma once

#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWidget>

#include <memory>
#include <vector>

/// Opens the protected way in which a widget describes itself to its style.
template <typename Widget>
class Open : public Widget
{
public:
    using Widget::initStyleOption;
    using Widget::Widget;
};

/// A widget and the option with which it asks its style.
struct WidgetSample
{
    const char *name;
    std::shared_ptr<QWidget> widget;
    std::shared_ptr<QStyleOption> option;
};

/// Returns one widget of each kind, laid out in \a direction.
std::vector<WidgetSample> widgetSamples(Qt::LayoutDirection direction);
