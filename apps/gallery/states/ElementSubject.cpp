#include "states/ElementSubject.h"

#include <QtCore/QMetaProperty>
#include <QtGui/QPainter>

namespace TARN::Gallery {

namespace {

using Condition = ElementCondition;

QWidget *topmostParent(QWidget *widget)
{
    while (widget->parentWidget()) {
        widget = widget->parentWidget();
    }
    return widget;
}

/// Sets a property that the class of \a widget declares; others would be taken for the
/// application's.
void setDeclared(QWidget &widget, const char *name, const QVariant &value)
{
    if (widget.metaObject()->indexOfProperty(name) >= 0) {
        widget.setProperty(name, value);
    }
}

void bringInto(QWidget &widget, ElementState state)
{
    if (state.testFlag(Condition::Checked)) {
        setDeclared(widget, "checkable", true);
        setDeclared(widget, "checked", true);
    }
    if (state.testFlag(Condition::PartlyChecked)) {
        setDeclared(widget, "tristate", true);
    }
    if (state.testFlag(Condition::ReadOnly)) {
        setDeclared(widget, "readOnly", true);
    }
    if (state.testFlag(Condition::Error)) {
        widget.setProperty("drawErrorIndicator", true);
    }
}

struct ConditionFlags
{
    Condition condition;
    QStyle::State set;
    QStyle::State cleared;
};

const ConditionFlags conditionFlags[] = {
    {Condition::Hover, QStyle::State_MouseOver, QStyle::State_None},
    {Condition::Pressed, QStyle::State_Sunken | QStyle::State_MouseOver, QStyle::State_Raised},
    {Condition::KeyboardFocus, QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange,
     QStyle::State_None},
    {Condition::ReadOnly, QStyle::State_ReadOnly, QStyle::State_None},
    {Condition::Checked, QStyle::State_On, QStyle::State_Off | QStyle::State_NoChange},
    {Condition::PartlyChecked, QStyle::State_NoChange, QStyle::State_Off | QStyle::State_On},
    {Condition::Selected, QStyle::State_Selected, QStyle::State_None},
    {Condition::Highlighted, QStyle::State_Selected, QStyle::State_None},
};

void bringInto(QStyleOption &option, ElementState state)
{
    option.state |= QStyle::State_Active;
    // Whatever is under the mouse by chance.
    option.state &= ~QStyle::State_MouseOver;
    for (const ConditionFlags &row : conditionFlags) {
        if (state.testFlag(row.condition)) {
            option.state |= row.set;
            option.state &= ~row.cleared;
        }
    }
    auto *complex = qstyleoption_cast<QStyleOptionComplex *>(&option);
    if (complex && !(option.state & QStyle::State_MouseOver)) {
        complex->activeSubControls = QStyle::SC_None;
    }
}

} // namespace

ElementSubject::ElementSubject(const ElementSample &sample, ElementState state)
    : m_sample(&sample)
    , m_state(state)
    , m_widget(sample.createWidget())
    , m_root(topmostParent(m_widget))
{
    m_widget->resize(sample.size);
    bringInto(*m_widget, state);
    m_widget->setEnabled(!state.testFlag(Condition::Disabled));
    m_root->ensurePolished();
}

ElementOption ElementSubject::option() const
{
    ElementOption option = m_sample->createOption(*m_widget);
    bringInto(*option, m_state);
    return option;
}

void ElementSubject::paint(const QStyle &style, QPainter &painter, Qt::LayoutDirection direction,
                           bool isEnabled)
{
    m_root->setLayoutDirection(direction);
    m_root->setEnabled(isEnabled &&
                       (m_root.get() != m_widget || !m_state.testFlag(Condition::Disabled)));
    painter.save();
    // What a widget's own painter begins with.
    painter.setFont(m_widget->font());
    painter.setPen(m_widget->palette().color(m_widget->foregroundRole()));
    painter.setLayoutDirection(direction);
    paintElement(m_sample->id, style, *option(), painter, m_widget);
    painter.restore();
}

void paintElement(const ElementId &id, const QStyle &style, const QStyleOption &option,
                  QPainter &painter, const QWidget *widget)
{
    switch (id.table) {
    case ElementTable::Primitives:
        style.drawPrimitive(QStyle::PrimitiveElement(id.element), &option, &painter, widget);
        return;
    case ElementTable::Controls:
        style.drawControl(QStyle::ControlElement(id.element), &option, &painter, widget);
        return;
    case ElementTable::ComplexControls:
        break;
    }
    if (const auto *complex = qstyleoption_cast<const QStyleOptionComplex *>(&option)) {
        style.drawComplexControl(QStyle::ComplexControl(id.element), complex, &painter, widget);
    }
}

} // namespace TARN::Gallery
