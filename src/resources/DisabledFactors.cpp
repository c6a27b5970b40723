#include "resources/DisabledFactors.h"

#include "common_utils/Helpers.h"

namespace TARN {

namespace {

/// Colours up to this perceived brightness are dark.
constexpr int brightestDarkColor = 130;

} // namespace

QColor disabledColor(const QColor &color, bool foreground, const DisabledFactors &factors)
{
    if (Helpers::getPerceivedBrightness(color) > brightestDarkColor) {
        return color.darker(foreground ? factors.lightForeground : factors.lightBackground);
    }
    return color.lighter(foreground ? factors.darkForeground : factors.darkBackground);
}

} // namespace TARN
