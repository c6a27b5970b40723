#include "style/catalogue/Names.h"

#include "style/BaseStyle.h"

#include <array>

namespace TARN {

const QString &nameOf(BrushName brush)
{
    static const std::array names{
#define MOX_BRUSH(name, twin, role, surfaces, meaning) QStringLiteral(#name),
#include "style/catalogue/Variables.def"
    };
    return names.at(static_cast<std::size_t>(brush));
}

const QString &nameOf(ColorName color)
{
    static const std::array names{
#define MOX_COLOR(name, twin, role, surfaces, meaning) QStringLiteral(#name),
#include "style/catalogue/Variables.def"
    };
    return names.at(static_cast<std::size_t>(color));
}

QBrush themeBrush(BrushName brush, bool enabled)
{
    return BaseStyle::getBrush(nameOf(brush), enabled);
}

QColor themeColor(ColorName color, bool enabled)
{
    return BaseStyle::getColor(nameOf(color), enabled);
}

} // namespace TARN
