#include "catalogue/WidgetColors.h"

#include "catalogue/Catalogue.h"
#include "common_utils/Contrast.h"
#include "resources/variables/Snapshot.h"

#include <QtCore/QString>
#include <QtGui/QGradient>
#include <QtGui/QVector3D>

#include <algorithm>

namespace TARN {

namespace {

constexpr char foregroundWord[] = "Foreground";
constexpr char backgroundWord[] = "Background";

/// How far from the line between ground and text a colour may lie that is a mixture of both; the
/// channels go from 0 to 1.
constexpr float mixtureReach = 0.2F;

struct FamilyRow
{
    const char *prefix; ///< of the names of variables
    WidgetColors::Roles roles;
};

// The rest belongs to the widget that is painted.
constexpr FamilyRow families[] = {
    {"Main", {QPalette::Highlight, QPalette::Highlight}},
    {"ForegroundHighlighted", {QPalette::Highlight, QPalette::HighlightedText}},
    {"Button", {QPalette::Button, QPalette::ButtonText}},
    {"ToggleButton", {QPalette::Button, QPalette::ButtonText}},
    {"Input", {QPalette::Base, QPalette::Text}},
    {"ItemView", {QPalette::Base, QPalette::Text}},
    {"ToolTip", {QPalette::ToolTipBase, QPalette::ToolTipText}},
};

constexpr QPalette::ColorRole paintedRoles[] = {
    QPalette::Window,      QPalette::WindowText, QPalette::Base,      QPalette::Text,
    QPalette::Button,      QPalette::ButtonText, QPalette::Highlight, QPalette::HighlightedText,
    QPalette::ToolTipBase, QPalette::ToolTipText};

QVector3D vectorOf(const QColor &color)
{
    return {float(color.redF()), float(color.greenF()), float(color.blueF())};
}

QColor colorOf(const QVector3D &vector, qreal alpha)
{
    const auto channel = [](float value) { return qBound(qreal(0), qreal(value), qreal(1)); };
    return QColor::fromRgbF(channel(vector.x()), channel(vector.y()), channel(vector.z()), alpha);
}

} // namespace

const WidgetColors *WidgetColors::s_current = nullptr;

WidgetColors::WidgetColors(const QPalette &own, const QPalette &program, QPalette::ColorGroup group,
                           Roles roles)
    : m_own(own)
    , m_program(program)
    , m_group(group)
    , m_roles(roles)
{
}

bool WidgetColors::differ(const QPalette &own, const QPalette &program, QPalette::ColorGroup group)
{
    return std::any_of(std::begin(paintedRoles), std::end(paintedRoles),
                       [&](QPalette::ColorRole role) {
                           return own.brush(group, role) != program.brush(group, role);
                       });
}

bool WidgetColors::hasTurned(Roles roles) const
{
    return m_own.brush(m_group, roles.ground) != m_program.brush(m_group, roles.ground) ||
           m_own.brush(m_group, roles.text) != m_program.brush(m_group, roles.text);
}

WidgetColors::Roles WidgetColors::rolesOf(const QString &name) const
{
    for (const FamilyRow &family : families) {
        if (name.startsWith(QLatin1String(family.prefix))) {
            return family.roles;
        }
    }
    return m_roles;
}

QColor WidgetColors::turn(const QColor &color, Roles roles) const
{
    const QVector3D ground = vectorOf(m_own.color(m_group, roles.ground));
    const QVector3D toText = vectorOf(m_own.color(m_group, roles.text)) - ground;
    const QVector3D programGround = vectorOf(m_program.color(m_group, roles.ground));
    const QVector3D toProgramText = vectorOf(m_program.color(m_group, roles.text)) - programGround;
    const QVector3D way = vectorOf(color) - ground;
    const float length = toText.lengthSquared();
    const float place = length > 0 ? QVector3D::dotProduct(way, toText) / length : 0;
    if ((way - place * toText).length() > mixtureReach && roles.ground != roles.text) {
        return color;
    }
    return colorOf(programGround + place * toProgramText, color.alphaF());
}

QBrush WidgetColors::turn(const QBrush &brush, Roles roles) const
{
    if (!brush.gradient()) {
        QBrush turned = brush;
        turned.setColor(turn(brush.color(), roles));
        return turned;
    }
    QGradient gradient = *brush.gradient();
    QGradientStops stops = gradient.stops();
    for (QGradientStop &stop : stops) {
        stop.second = turn(stop.second, roles);
    }
    gradient.setStops(stops);
    return QBrush(gradient);
}

/// Returns what the text called \a name is read on.
QColor WidgetColors::groundOf(const QString &name, Roles roles) const
{
    QString faceName = name;
    faceName.replace(QLatin1String(foregroundWord), QLatin1String(backgroundWord));
    const QBrush *face = findVariable<BrushKind>(faceName);
    const QColor ground = m_program.color(m_group, roles.ground);
    return face && !face->gradient() && face->color().alpha() == 255 ? turn(face->color(), roles)
                                                                     : ground;
}

/// Returns \a text as it is read on \a ground, which it was not made for.
QColor WidgetColors::legible(const QColor &text, const QColor &ground, Roles roles) const
{
    if (Helpers::contrastRatio(text, ground) >= Catalogue::textContrast) {
        return text;
    }
    const QColor programText = m_program.color(m_group, roles.text);
    const QColor programGround = m_program.color(m_group, roles.ground);
    return Helpers::contrastRatio(programText, ground) >=
                   Helpers::contrastRatio(programGround, ground)
               ? programText
               : programGround;
}

const QBrush &WidgetColors::turned(const QBrush &value, const QString &name) const
{
    const Roles roles = rolesOf(name);
    if (!hasTurned(roles)) {
        return value;
    }
    const auto [it, isNew] = m_brushes.try_emplace(&value, turn(value, roles));
    const bool isText = name.contains(QLatin1String(foregroundWord));
    if (isNew && isText && !value.gradient() && m_group != QPalette::Disabled) {
        it->second.setColor(legible(it->second.color(), groundOf(name, roles), roles));
    }
    return it->second;
}

const QColor &WidgetColors::turned(const QColor &value, const QString &name) const
{
    const Roles roles = rolesOf(name);
    return hasTurned(roles) ? m_colors.try_emplace(&value, turn(value, roles)).first->second
                            : value;
}

} // namespace TARN
