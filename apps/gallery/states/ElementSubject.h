#pragma once

#include "states/ElementSample.h"

#include <QtWidgets/QWidget>

class QPainter;

namespace TARN::Gallery {

/// A sample in one state, with a widget of its own that is never shown.
class ElementSubject
{
public:
    /// \a sample must outlive the subject.
    ElementSubject(const ElementSample &sample, ElementState state);

    const ElementSample &sample() const { return *m_sample; }
    ElementState state() const { return m_state; }
    QWidget *widget() const { return m_widget; }

    /// Returns the option that describes the widget in its state as it is now.
    ElementOption option() const;

    /// Paints the element by \a style in the rectangle of the sample's size at the origin of
    /// \a painter, laid out in \a direction and, unless \a isEnabled, as disabled. Leaves the
    /// painter as it was.
    void paint(const QStyle &style, QPainter &painter, Qt::LayoutDirection direction,
               bool isEnabled);

private:
    const ElementSample *m_sample;
    ElementState m_state;
    QWidget *m_widget;
    std::unique_ptr<QWidget> m_root; // the widget itself or the topmost of its parents
};

/// Has \a style paint the element \a id, whose option is of the right type if it is complex.
void paintElement(const ElementId &id, const QStyle &style, const QStyleOption &option,
                  QPainter &painter, const QWidget *widget);

} // namespace TARN::Gallery
