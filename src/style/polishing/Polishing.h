#pragma once

#include "catalogue/Properties.h"
#include "style/polishing/Undo.h"

#include <QtCore/QVariant>
#include <QtGui/QPalette>
#include <QtWidgets/QStyle>
#include <QtWidgets/QWidget>

#include <initializer_list>

namespace TARN {

/// The brushes of a role of a palette, by colour group.
struct RoleBrushes
{
    QPalette::ColorRole role;
    QBrush active;
    QBrush inactive;
    QBrush disabled;
};

/// The polishing of one widget: through it the rules change the widget.
///
/// By default what a widget was given stays with it. In the complete mode it is taken back when the
/// widget leaves the style, unless somebody has changed it since; and what a program has set is
/// left alone.
class Polishing
{
public:
    /// The polishing of \a widget by \a style; \a undo learns how to take it back, and is null
    /// where nothing is taken back.
    Polishing(QStyle &style, QWidget &widget, Undo *undo)
        : m_style(style)
        , m_widget(widget)
        , m_undo(undo)
    {
    }

    QStyle &style() const { return m_style; }
    QWidget &widget() const { return m_widget; }

    void setAttribute(Qt::WidgetAttribute attribute);
    void setProperty(Property property, const QVariant &value);
    void setMinimumHeight(int height);
    void setFont(const QFont &font);
    /// Gives the palette of the widget \a roles, but for those that a program has set.
    void setBrushes(std::initializer_list<RoleBrushes> roles);
    /// Gives the palette of the widget the \a role of all groups in the brush \a enabled, that of
    /// the disabled group in \a disabled.
    void setBrushes(QPalette::ColorRole role, const QBrush &enabled, const QBrush &disabled);
    /// Has the style hear the events of the widget.
    void installEventFilter();

    /// Has \a step take back what a rule has done by other ways. The widget is alive then.
    void addUndo(Undo::Step step);

private:
    bool isSetByProgram(QPalette::ColorRole role) const;

    QStyle &m_style;
    QWidget &m_widget;
    Undo *m_undo;
};

} // namespace TARN
