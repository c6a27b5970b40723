#include "check/model/Appearance.h"

#include "color/Tones.h"
#include "text/Literals.h"

#include <resources/ThemeResources.h>

#include <QtCore/QMetaEnum>
#include <QtGui/QGradient>

namespace TARN::ThemeTool {

namespace {

/// How opaque the library makes every highlight of the palette.
constexpr double highlightOpacity = 0.6;

Appearance::Colors colorsOf(const QBrush &brush)
{
    if (!brush.gradient()) {
        return {brush.color()};
    }
    Appearance::Colors colors;
    for (const QGradientStop &stop : brush.gradient()->stops()) {
        colors.append(stop.second);
    }
    return colors;
}

int roleValue(const QString &key)
{
    return QMetaEnum::fromType<QPalette::ColorRole>().keyToValue(key.toUtf8().constData());
}

bool isActive(QPalette::ColorGroup group)
{
    return group == QPalette::Active || group == QPalette::All || group == QPalette::Current;
}

} // namespace

QString paletteRoleOf(const QString &surface)
{
    const QString prefix = "palette/"_s;
    return surface.startsWith(prefix) ? surface.mid(prefix.size()) : QString();
}

Appearance::Appearance(const Configuration &configuration, const QVector<MappingEntry> &palette)
    : m_configuration(configuration)
{
    for (const MappingEntry &entry : palette) {
        if (isActive(entry.group)) {
            m_palette.insert(entry.role, entry);
        }
    }
}

Appearance::Colors Appearance::variable(const QString &name) const
{
    const QMap<QString, QBrush> &brushes = m_configuration.brushes;
    const auto brush = brushes.constFind(name);
    if (brush != brushes.cend()) {
        const bool isDerived =
            m_configuration.derivedBrushes.contains(name) ||
            !m_configuration.entries.value(ThemeResources::getBrushesVarPrefix()).contains(name);
        return isDerived ? Colors() : colorsOf(*brush);
    }
    const auto color = m_configuration.colors.constFind(name);
    const bool isDerived =
        !m_configuration.entries.value(ThemeResources::getColorsVarPrefix()).contains(name);
    return color == m_configuration.colors.cend() || isDerived ? Colors() : Colors{*color};
}

const MappingEntry *Appearance::paletteEntry(const QString &role) const
{
    const auto entry = m_palette.constFind(roleValue(role));
    return entry == m_palette.cend() ? nullptr : &*entry;
}

Appearance::Colors Appearance::paletteRole(const QString &role) const
{
    const MappingEntry *entry = paletteEntry(role);
    return entry ? paletteColors(*entry) : Colors();
}

Appearance::Colors Appearance::paletteColors(const MappingEntry &entry) const
{
    const QString reference = entry.reference();
    Colors colors = reference.isEmpty() ? Colors{QColor(entry.text)} : variable(reference);
    if (entry.role == QPalette::Highlight) {
        for (QColor &color : colors) {
            color.setAlphaF(highlightOpacity);
        }
    }
    return colors;
}

Appearance::Colors Appearance::opaque(const Colors &colors, const Colors &grounds) const
{
    Colors seen;
    for (const QColor &color : colors) {
        if (color.alpha() == 255) {
            seen.append(color);
            continue;
        }
        for (const QColor &ground : grounds) {
            seen.append(mixed(color, 1, ground));
        }
    }
    return seen;
}

Appearance::Colors Appearance::surface(const QString &name) const
{
    Colors window = variable("BackgroundColor"_s);
    for (QColor &color : window) {
        color.setAlpha(255);
    }
    const QString role = paletteRoleOf(name);
    if (role.isEmpty()) {
        return opaque(variable(name), window);
    }
    const Colors base = opaque(paletteRole("Base"_s), window);
    return opaque(paletteRole(role), base.isEmpty() ? window : base);
}

} // namespace TARN::ThemeTool
