#pragma once

#include "text/Literals.h"

#include <QtGui/QColor>

namespace TARN::ThemeTool {

/// Returns \a color as theme files and token files hold it: "#RRGGBB", "#AARRGGBB" when it is not
/// opaque, "transparent" when nothing is seen of it and it is no tint of a colour either.
inline QString colorText(const QColor &color)
{
    if (color.rgba() == 0) {
        return "transparent"_s;
    }
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb).toUpper();
}

} // namespace TARN::ThemeTool
