#pragma once

#include <QtCore/QSize>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleOption>

class QPainter;

/// What a widget, or somebody on its behalf, asks the style for, together with whom the style may
/// ask in turn: the outermost style, whose answers win over ours, and the base style below ours.
/// The option is never null, the widget may be.
namespace TARN {

/// Where the text, the check box or the contents of a widget lie.
struct SubElementRequest
{
    const QProxyStyle &style; ///< the one that was asked
    QStyle::SubElement element;
    const QStyleOption *option;
    const QWidget *widget;

    const QStyle &proxy() const { return *style.proxy(); }
    int metric(QStyle::PixelMetric metric) const
    {
        return proxy().pixelMetric(metric, option, widget);
    }
    /// Returns the base style's answer.
    QRect baseRect() const { return style.QProxyStyle::subElementRect(element, option, widget); }
};

/// Where a part of a complex control lies.
struct SubControlRequest
{
    const QProxyStyle &style; ///< the one that was asked
    QStyle::ComplexControl control;
    const QStyleOptionComplex *option;
    QStyle::SubControl subControl;
    const QWidget *widget;

    const QStyle &proxy() const { return *style.proxy(); }
    int metric(QStyle::PixelMetric metric) const
    {
        return proxy().pixelMetric(metric, option, widget);
    }
    /// Returns the base style's answer.
    QRect baseRect() const
    {
        return style.QProxyStyle::subControlRect(control, option, subControl, widget);
    }
};

/// How large a widget is to be.
struct ContentsRequest
{
    const QProxyStyle &style; ///< the one that was asked
    QStyle::ContentsType type;
    const QStyleOption *option;
    QSize contents;
    const QWidget *widget;

    const QStyle &proxy() const { return *style.proxy(); }
    int metric(QStyle::PixelMetric metric) const
    {
        return proxy().pixelMetric(metric, option, widget);
    }
    /// Returns the base style's answer.
    QSize baseSize() const
    {
        return style.QProxyStyle::sizeFromContents(type, option, contents, widget);
    }
};

/// What is to be painted. The painter is never null.
struct PaintRequest
{
    const QProxyStyle &style; ///< the one that was asked
    const QStyleOption *option;
    QPainter *painter;
    const QWidget *widget;

    const QStyle &proxy() const { return *style.proxy(); }
    int metric(QStyle::PixelMetric metric) const
    {
        return proxy().pixelMetric(metric, option, widget);
    }
    /// Has the outermost style paint a part of what is asked for.
    void draw(QStyle::PrimitiveElement element, const QStyleOption &part) const
    {
        proxy().drawPrimitive(element, &part, painter, widget);
    }
    void draw(QStyle::ControlElement element, const QStyleOption &part) const
    {
        proxy().drawControl(element, &part, painter, widget);
    }
};

} // namespace TARN
