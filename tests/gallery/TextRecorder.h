#pragma once

#include "ShownTexts.h"

#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWidget>

/// What the toolkit leaves between an icon and its text.
inline constexpr int iconSpacing = 4;

/// Lets anybody ask a widget for its style option.
template <typename Widget>
struct Asked : Widget
{
    using Widget::initStyleOption;
};

template <typename Option, typename Widget, typename... Item>
Option optionOf(const Widget &widget, const Item &...item)
{
    Option option;
    (widget.*(&Asked<Widget>::initStyleOption))(&option, item...);
    return option;
}

QSize sizeOf(const QString &text, const QFontMetrics &metrics);
QSize wrappedSizeOf(const QString &text, const QFontMetrics &metrics, int width);
QFont boldened(QFont font);
/// Returns what of a style's rectangle lies inside the widget.
QSize roomFor(QStyle::SubElement element, const QStyleOption &option, const QWidget &widget);
QSize roomFor(QStyle::ComplexControl control, QStyle::SubControl part,
              const QStyleOptionComplex &option, const QWidget &widget);
int metricOf(QStyle::PixelMetric metric, const QStyleOption &option, const QWidget &widget);
int iconWidth(const QIcon &icon, const QSize &size);

/// Takes the texts of one widget down.
class TextRecorder
{
public:
    TextRecorder(const QWidget &widget, QVector<ShownText> &texts)
        : m_widget(widget)
        , m_texts(texts)
    {
    }

    void add(const char *kind, const QString &text, const QSize &needed, const QSize &room)
    {
        if (!text.isEmpty()) {
            m_texts.append({&m_widget, kind, text, needed, room});
        }
    }

    /// Takes down a text in one line and in the widget's font.
    void addLine(const char *kind, const QString &text, const QSize &room)
    {
        add(kind, text, sizeOf(text, m_widget.fontMetrics()), room);
    }

private:
    const QWidget &m_widget;
    QVector<ShownText> &m_texts;
};

/// Calls \a record if \a widget is a \a Widget. Returns whether it is.
template <typename Widget>
bool recordAs(const QWidget &widget, TextRecorder &recorder,
              void (*record)(const Widget &, TextRecorder &))
{
    const auto *specific = qobject_cast<const Widget *>(&widget);
    if (specific) {
        record(*specific, recorder);
    }
    return specific;
}
