#include "catalogue/Names.h"

#include "catalogue/VariableTable.h"
#include "catalogue/Words.h"
#include "resources/ThemeResources.h"
#include "resources/kept/KeptValue.h"

#include <array>

namespace TARN {

namespace {

/// Only their last values are of interest: how many there are.
enum class Brushes : std::size_t {
#define MOX_BRUSH(name, twin, role, surfaces, meaning) name,
#include "catalogue/Variables.def"
    Count
};

enum class Colors : std::size_t {
#define MOX_COLOR(name, twin, role, surfaces, meaning) name,
#include "catalogue/Variables.def"
    Count
};

constexpr auto brushCount = static_cast<std::size_t>(Brushes::Count);
constexpr auto colorCount = static_cast<std::size_t>(Colors::Count);

} // namespace

const QString &nameOf(BrushName brush)
{
    static const std::array names{
#define MOX_BRUSH(name, twin, role, surfaces, meaning) QStringLiteral(#name),
#include "catalogue/Variables.def"
    };
    return names.at(static_cast<std::size_t>(brush));
}

const QString &nameOf(ColorName color)
{
    static const std::array names{
#define MOX_COLOR(name, twin, role, surfaces, meaning) QStringLiteral(#name),
#include "catalogue/Variables.def"
    };
    return names.at(static_cast<std::size_t>(color));
}

const QBrush &themeBrush(BrushName brush, bool enabled)
{
    static ProcessCached<VariableTable<QBrush, brushCount>> table(
        [] { return VariableTable<QBrush, brushCount>(); });
    return table.value().value(static_cast<std::size_t>(brush), enabled, [brush, enabled] {
        return ThemeResources::getBrush(Words::variable(nameOf(brush), enabled));
    });
}

const QColor &themeColor(ColorName color, bool enabled)
{
    static ProcessCached<VariableTable<QColor, colorCount>> table(
        [] { return VariableTable<QColor, colorCount>(); });
    return table.value().value(static_cast<std::size_t>(color), enabled, [color, enabled] {
        return ThemeResources::getColor(Words::variable(nameOf(color), enabled));
    });
}

} // namespace TARN
