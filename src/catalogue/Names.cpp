#include "catalogue/Names.h"

#include "catalogue/VariableTable.h"

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
    static VariableTable<BrushKind, brushCount> table;
    return table.value(static_cast<std::size_t>(brush), enabled, [brush] { return nameOf(brush); });
}

const QColor &themeColor(ColorName color, bool enabled)
{
    static VariableTable<ColorKind, colorCount> table;
    return table.value(static_cast<std::size_t>(color), enabled, [color] { return nameOf(color); });
}

} // namespace TARN
