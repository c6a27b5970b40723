#include "support/geometry/FusionReference.h"

#include <QtTest/QtTest>

#include <support/Text.h>
#include <utility>

FusionReference::FusionReference()
    : QProxyStyle(text("fusion"))
{
}

bool FusionReference::isOwn(SubElement element)
{
    switch (element) {
    case SE_CheckBoxIndicator:
    case SE_CheckBoxContents:
    case SE_TabWidgetTabBar:
    case SE_ItemViewItemCheckIndicator:
    case SE_ItemViewItemDecoration:
    case SE_ItemViewItemText:
    case SE_TabBarTabRightButton:
    case SE_TabBarTabText:
        return true;
    default:
        return false;
    }
}

bool FusionReference::isOwn(ComplexControl control)
{
    switch (control) {
    case CC_SpinBox:
    case CC_ComboBox:
    case CC_ScrollBar:
    case CC_Slider:
    case CC_GroupBox:
        return true;
    default:
        return false;
    }
}

bool FusionReference::isOwn(ContentsType type)
{
    switch (type) {
    case CT_PushButton:
    case CT_ToolButton:
    case CT_ComboBox:
    case CT_LineEdit:
    case CT_ProgressBar:
    case CT_TabBarTab:
    case CT_Slider:
    case CT_ScrollBar:
    case CT_ItemViewItem:
        return true;
    default:
        return false;
    }
}

int FusionReference::pixelMetric(PixelMetric metric, const QStyleOption *option,
                                 const QWidget *widget) const
{
    return m_style.pixelMetric(metric, option, widget);
}

int FusionReference::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                               QStyleHintReturn *returnData) const
{
    return m_style.styleHint(hint, option, widget, returnData);
}

QRect FusionReference::subElementRect(SubElement element, const QStyleOption *option,
                                      const QWidget *widget) const
{
    return isOwn(element) ? m_style.subElementRect(element, option, widget)
                          : QProxyStyle::subElementRect(element, option, widget);
}

QRect FusionReference::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                      SubControl sc, const QWidget *widget) const
{
    return isOwn(control) ? m_style.subControlRect(control, option, sc, widget)
                          : QProxyStyle::subControlRect(control, option, sc, widget);
}

QSize FusionReference::sizeFromContents(ContentsType type, const QStyleOption *option,
                                        const QSize &contents, const QWidget *widget) const
{
    return isOwn(type) ? m_style.sizeFromContents(type, option, contents, widget)
                       : QProxyStyle::sizeFromContents(type, option, contents, widget);
}

QIcon FusionReference::standardIcon(StandardPixmap sp, const QStyleOption *option,
                                    const QWidget *widget) const
{
    return m_style.standardIcon(sp, option, widget);
}

int FusionReference::fusionMetric(PixelMetric metric, const QStyleOption *option,
                                  const QWidget *widget) const
{
    return QProxyStyle::pixelMetric(metric, option, widget);
}

QRect FusionReference::fusionRect(SubElement element, const QStyleOption &option,
                                  const QWidget *widget) const
{
    return QProxyStyle::subElementRect(element, &option, widget);
}

QRect FusionReference::fusionRect(ComplexControl control, const QStyleOptionComplex &option,
                                  SubControl sc, const QWidget *widget) const
{
    return QProxyStyle::subControlRect(control, &option, sc, widget);
}

QSize FusionReference::fusionSize(ContentsType type, const QStyleOption &option,
                                  const QSize &contents, const QWidget *widget) const
{
    return QProxyStyle::sizeFromContents(type, &option, contents, widget);
}

ChangedStyle::ChangedStyle(QMap<int, int> metrics, QMap<int, int> hints, QStyle *style)
    : QProxyStyle(style)
    , m_metrics(std::move(metrics))
    , m_hints(std::move(hints))
{
}

int ChangedStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                              const QWidget *widget) const
{
    const auto changed = m_metrics.constFind(metric);
    return changed != m_metrics.constEnd() ? *changed
                                           : QProxyStyle::pixelMetric(metric, option, widget);
}

int ChangedStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                            QStyleHintReturn *returnData) const
{
    const auto changed = m_hints.constFind(hint);
    return changed != m_hints.constEnd() ? *changed
                                         : QProxyStyle::styleHint(hint, option, widget, returnData);
}

void compareWithFusion(QStyle::ComplexControl control, const QStyleOptionComplex &option,
                       const QWidget *widget)
{
    const TARN::BaseStyle style;
    const FusionReference reference;
    for (const QStyle::SubControl part : subControlBits) {
        QCOMPARE(style.subControlRect(control, &option, part, widget),
                 reference.fusionRect(control, option, part, widget));
    }
}

void compareWithFusion(QStyle::ContentsType type, const QStyleOption &option, const QSize &contents,
                       const QWidget *widget)
{
    const TARN::BaseStyle style;
    const FusionReference reference;
    QCOMPARE(style.sizeFromContents(type, &option, contents, widget),
             reference.fusionSize(type, option, contents, widget));
}

QStyleOptionButton buttonOption(const QStyleOption &option)
{
    QStyleOptionButton button;
    button.rect = option.rect;
    button.state = option.state;
    button.direction = option.direction;
    button.fontMetrics = option.fontMetrics;
    button.palette = option.palette;
    return button;
}
