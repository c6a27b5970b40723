#include "style/polishing/Polishing.h"

#include "style/asking/Properties.h"

#include <QtGui/QFont>
#include <QtWidgets/QApplication>

namespace TARN {

namespace {

constexpr QPalette::ColorGroup colorGroups[] = {QPalette::Active, QPalette::Inactive,
                                                QPalette::Disabled};

constexpr uint maskOf(QPalette::ColorRole role)
{
    return 1U << uint(role);
}

bool haveSameBrushes(const QPalette &left, const QPalette &right, QPalette::ColorRole role)
{
    return std::all_of(std::begin(colorGroups), std::end(colorGroups),
                       [&](QPalette::ColorGroup group) {
                           return left.brush(group, role) == right.brush(group, role);
                       });
}

/// Has \a widget take the roles of \a mask from where it stands again, as far as it still has what
/// \a given has.
void takeBackRoles(QWidget &widget, const QPalette &given, uint mask)
{
    QPalette palette = widget.palette();
    uint kept = palette.resolve();
    for (int i = 0; i < QPalette::NColorRoles; ++i) {
        const auto role = static_cast<QPalette::ColorRole>(i);
        if ((mask & maskOf(role)) != 0 && haveSameBrushes(palette, given, role)) {
            kept &= ~maskOf(role);
        }
    }
    if (kept != palette.resolve()) {
        palette.resolve(kept);
        widget.setPalette(palette);
    }
}

/// Tells whether \a font has what \a given asks for. What that leaves open follows the
/// application's font, which may be another one by now.
bool fulfils(const QFont &font, const QFont &given)
{
    const uint asked = given.resolve();
    return ((asked & QFont::FamilyResolved) == 0 || font.family() == given.family()) &&
           ((asked & QFont::SizeResolved) == 0 || font.pointSizeF() == given.pointSizeF()) &&
           ((asked & QFont::WeightResolved) == 0 || font.weight() == given.weight());
}

/// Has \a widget take its font from where it stands again, if it still has \a given.
void takeBackFont(QWidget &widget, const QFont &given)
{
    if (fulfils(widget.font(), given)) {
        widget.setFont(QFont());
    }
}

} // namespace

void Polishing::addUndo(Undo::Step step)
{
    if (m_undo) {
        m_undo->add(std::move(step));
    }
}

void Polishing::setAttribute(Qt::WidgetAttribute attribute)
{
    if (m_widget.testAttribute(attribute)) {
        return;
    }
    m_widget.setAttribute(attribute);
    addUndo([&widget = m_widget, attribute] { widget.setAttribute(attribute, false); });
}

void Polishing::setProperty(Property property, const QVariant &value)
{
    if (!m_undo) {
        TARN::setProperty(m_widget, property, value);
        return;
    }
    const QVariant former = propertyOf(&m_widget, property);
    if (former == value) {
        return;
    }
    TARN::setProperty(m_widget, property, value);
    addUndo([&widget = m_widget, property, value, former] {
        if (propertyOf(&widget, property) == value) {
            TARN::setProperty(widget, property, former);
        }
    });
}

void Polishing::setMinimumHeight(int height)
{
    const int former = m_widget.minimumHeight();
    m_widget.setMinimumHeight(height);
    addUndo([&widget = m_widget, height, former] {
        if (widget.minimumHeight() == height) {
            widget.setMinimumHeight(former);
        }
    });
}

void Polishing::setFont(const QFont &font)
{
    if (!m_undo) {
        // A stylesheet gives widgets that leave it the font back that it knows; it is told of this
        // one, or it would bring a former theme's back.
        TARN::setProperty(m_widget, Property::StyleSheetFont, font);
        m_widget.setFont(font);
        return;
    }
    if (m_widget.testAttribute(Qt::WA_SetFont)) {
        return;
    }
    m_widget.setFont(font);
    addUndo([&widget = m_widget, font] { takeBackFont(widget, font); });
}

/// Tells whether the widget, one that it stands on, its class or the application was given \a role
/// by somebody else.
bool Polishing::isSetByProgram(QPalette::ColorRole role) const
{
    uint mask = QApplication::palette(&m_widget).resolve();
    for (const QWidget *widget = &m_widget; widget;
         widget = widget->isWindow() ? nullptr : widget->parentWidget()) {
        mask |= widget->palette().resolve();
    }
    return (mask & maskOf(role)) != 0;
}

void Polishing::setBrushes(QPalette::ColorRole role, const QBrush &enabled, const QBrush &disabled)
{
    setBrushes({{role, enabled, enabled, disabled}});
}

void Polishing::setBrushes(std::initializer_list<RoleBrushes> roles)
{
    QPalette palette = m_widget.palette();
    uint given = 0;
    for (const RoleBrushes &brushes : roles) {
        if (m_undo && isSetByProgram(brushes.role)) {
            continue;
        }
        palette.setBrush(QPalette::Active, brushes.role, brushes.active);
        palette.setBrush(QPalette::Inactive, brushes.role, brushes.inactive);
        palette.setBrush(QPalette::Disabled, brushes.role, brushes.disabled);
        given |= maskOf(brushes.role);
    }
    if (given == 0) {
        return;
    }
    m_widget.setPalette(palette);
    addUndo([&widget = m_widget, palette, given] { takeBackRoles(widget, palette, given); });
}

void Polishing::installEventFilter()
{
    m_widget.installEventFilter(&m_style);
    addUndo([&widget = m_widget, &style = m_style] { widget.removeEventFilter(&style); });
}

} // namespace TARN
