#include "common_utils/Helpers.h"

#include <QtCore/QtMath>

namespace TARN::Helpers {

int getPerceivedBrightness(const QColor &color)
{
    // The eye sees green brightest and blue darkest. The weights add up to 1000, which makes the
    // weighted root mean square of a grey exactly that grey.
    const QRgb rgb = color.rgb();
    const int red = qRed(rgb);
    const int green = qGreen(rgb);
    const int blue = qBlue(rgb);
    const int weighted = 241 * red * red + 691 * green * green + 68 * blue * blue;
    return qRound(qSqrt(weighted / 1000.0));
}

} // namespace TARN::Helpers
