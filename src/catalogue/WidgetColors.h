#pragma once

#include <QtGui/QBrush>
#include <QtGui/QPalette>

#include <unordered_map>

namespace TARN {

/// The colours of a widget whose palette a program has changed. While the widget is painted, what
/// is looked up in the theme is turned into its colours, so that all of it has one source: half in
/// the theme's colours and half in the program's, it would be illegible.
///
/// A colour keeps its place between the ground and the text that it belongs to. What lies far from
/// both, as the colours that warn do, stays.
class WidgetColors
{
public:
    /// The roles of what a widget stands on and of its text.
    struct Roles
    {
        QPalette::ColorRole ground;
        QPalette::ColorRole text;
    };

    /// The colours of \a own, in \a group, become those of \a program; \a roles are those of the
    /// widget.
    WidgetColors(const QPalette &own, const QPalette &program, QPalette::ColorGroup group,
                 Roles roles);

    /// Returns those of the widget that is being painted; null for a widget in the theme's.
    static const WidgetColors *current() { return s_current; }

    /// Tells whether the palettes differ in a role that anything is painted with.
    static bool differ(const QPalette &own, const QPalette &program, QPalette::ColorGroup group);

    /// Return the theme's \a value, called \a name, in the widget's colours. The references are
    /// valid as long as this object and \a value are.
    const QBrush &turned(const QBrush &value, const QString &name) const;
    const QColor &turned(const QColor &value, const QString &name) const;

    /// Has \a colors be the current ones as long as the object lives.
    class Scope
    {
    public:
        explicit Scope(const WidgetColors *colors)
            : m_former(s_current)
        {
            s_current = colors;
        }
        ~Scope() { s_current = m_former; }
        Q_DISABLE_COPY_MOVE(Scope)

    private:
        const WidgetColors *m_former;
    };

private:
    bool hasTurned(Roles roles) const;
    Roles rolesOf(const QString &name) const;
    QColor turn(const QColor &color, Roles roles) const;
    QBrush turn(const QBrush &brush, Roles roles) const;
    QColor groundOf(const QString &name, Roles roles) const;
    QColor legible(const QColor &text, const QColor &ground, Roles roles) const;

    static const WidgetColors *s_current;

    QPalette m_own;
    QPalette m_program;
    QPalette::ColorGroup m_group;
    Roles m_roles;
    // By the place of the theme's value.
    mutable std::unordered_map<const void *, QBrush> m_brushes;
    mutable std::unordered_map<const void *, QColor> m_colors;
};

} // namespace TARN
