#include "support/painting/CallRecorder.h"

#include <catalogue/Elements.h>

#include <QtGui/QPainter>

#include <support/Text.h>

CallRecorder::CallRecorder()
    : QProxyStyle(new TARN::BaseStyle)
    , m_style(static_cast<TARN::BaseStyle *>(baseStyle()))
{
}

QImage CallRecorder::record(const QSize &size, const QColor &ground,
                            const std::function<void(QPainter *)> &paint)
{
    m_calls.clear();
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(ground);
    QPainter painter(&picture);
    paint(&painter);
    return picture;
}

QImage CallRecorder::picture(PrimitiveElement element, const QStyleOption &option,
                             const QWidget *widget, const QSize &size, const QColor &ground)
{
    return record(size, ground, [&](QPainter *painter) {
        m_style->drawPrimitive(element, &option, painter, widget);
    });
}

QImage CallRecorder::picture(ControlElement element, const QStyleOption &option,
                             const QWidget *widget, const QSize &size, const QColor &ground)
{
    return record(size, ground, [&](QPainter *painter) {
        m_style->drawControl(element, &option, painter, widget);
    });
}

QImage CallRecorder::picture(ComplexControl control, const QStyleOptionComplex &option,
                             const QWidget *widget, const QSize &size, const QColor &ground)
{
    return record(size, ground, [&](QPainter *painter) {
        m_style->drawComplexControl(control, &option, painter, widget);
    });
}

QStringList CallRecorder::elements() const
{
    QStringList elements;
    for (const PaintCall &call : m_calls) {
        elements.append(call.element);
    }
    return elements;
}

PaintCall CallRecorder::call(const char *element) const
{
    for (const PaintCall &call : m_calls) {
        if (call.element == text(element)) {
            return call;
        }
    }
    return {};
}

void CallRecorder::stopAt(const char *element)
{
    m_stops.append(text(element));
}

/// Tells whether the element is to be painted.
bool CallRecorder::keep(const char *element, const QStyleOption *option) const
{
    m_calls.push_back({text(element), option->rect, option->state, QString()});
    return !m_stops.contains(text(element));
}

void CallRecorder::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                 QPainter *painter, const QWidget *widget) const
{
    if (keep(TARN::Catalogue::primitives().at(element).name, option)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void CallRecorder::drawControl(ControlElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *widget) const
{
    if (keep(TARN::Catalogue::controls().at(element).name, option)) {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void CallRecorder::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                      QPainter *painter, const QWidget *widget) const
{
    if (keep(TARN::Catalogue::complexControls().at(control).name, option)) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

void CallRecorder::drawItemText(QPainter *painter, const QRect &rect, int flags,
                                const QPalette &palette, bool enabled, const QString &text,
                                QPalette::ColorRole textRole) const
{
    m_calls.push_back({QStringLiteral("drawItemText"), rect,
                       enabled ? QStyle::State_Enabled : QStyle::State_None, text});
    QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, textRole);
}

void CallRecorder::drawItemPixmap(QPainter *painter, const QRect &rect, int alignment,
                                  const QPixmap &pixmap) const
{
    m_calls.push_back({QStringLiteral("drawItemPixmap"), rect, QStyle::State_None, QString()});
    QProxyStyle::drawItemPixmap(painter, rect, alignment, pixmap);
}
