#pragma once

#include "samples/Literals.h"
#include "states/ElementSample.h"

#include <QtWidgets/QWidget>

namespace TARN::Gallery {

using WidgetMaker = std::function<QWidget *()>;
using OptionMaker = std::function<ElementOption(const QWidget &)>;

inline const QString sampleText = QStringLiteral("Text");

/// Returns the maker of widgets of a class, which \a prepare has its way with.
template <typename Widget>
WidgetMaker making(const std::function<void(Widget &)> &prepare = {})
{
    return [prepare] {
        auto *widget = new Widget;
        if (prepare) {
            prepare(*widget);
        }
        return widget;
    };
}

/// Returns \a make, followed by setting \a property to \a value.
inline WidgetMaker with(const char *property, const WidgetMaker &make, const QVariant &value = true)
{
    return [=] {
        QWidget *widget = make();
        widget->setProperty(property, value);
        return widget;
    };
}

/// Opens the protected way in which widgets of a class describe themselves.
template <typename Widget>
struct Opened : Widget
{
    static auto description() { return &Opened::initStyleOption; }
    static auto viewDescription() { return &Opened::viewOptions; }
};

/// Returns the maker of the options by which widgets of a class describe themselves, which
/// \a prepare completes.
template <typename Widget, typename Option>
OptionMaker describing(const std::function<void(Option &)> &prepare = {})
{
    return [prepare](const QWidget &widget) {
        auto option = std::make_shared<Option>();
        (static_cast<const Widget &>(widget).*Opened<Widget>::description())(option.get());
        if (prepare) {
            prepare(*option);
        }
        return option;
    };
}

/// Returns the maker of options for what has no description of its own.
template <typename Option = QStyleOption>
OptionMaker plain(const std::function<void(Option &)> &prepare = {})
{
    return [prepare](const QWidget &widget) {
        auto option = std::make_shared<Option>();
        option->initFrom(&widget);
        if (prepare) {
            prepare(*option);
        }
        return option;
    };
}

} // namespace TARN::Gallery
