#include "color/Oklch.h"

#include <QtCore/qmath.h>

#include <cmath>

namespace TARN::ThemeTool {

namespace {

// No colour of a screen is stronger; a bound spares the search from what cannot be shown anyway.
constexpr double strongestChroma = 0.4;
// Below it lies what the ten digits of the matrices leave of a grey.
constexpr double greyChroma = 1e-6;
// How far light may lie outside the screen's range; a thirtieth of the smallest step of 8 bits.
constexpr double gamutTolerance = 1e-5;

struct LinearRgb
{
    double red = 0;
    double green = 0;
    double blue = 0;
};

struct Oklab
{
    double lightness = 0;
    double a = 0;
    double b = 0;
};

double linearFromScreen(double channel)
{
    const double value = qBound(0.0, channel, 1.0);
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

int screenFromLinear(double light)
{
    const double value = qBound(0.0, light, 1.0);
    const double channel =
        value <= 0.0031308 ? value * 12.92 : 1.055 * std::pow(value, 1 / 2.4) - 0.055;
    return qBound(0, qRound(channel * 255), 255);
}

Oklab oklabFromColor(const QColor &color)
{
    const double red = linearFromScreen(color.redF());
    const double green = linearFromScreen(color.greenF());
    const double blue = linearFromScreen(color.blueF());

    const double l = std::cbrt(0.4122214708 * red + 0.5363325363 * green + 0.0514459929 * blue);
    const double m = std::cbrt(0.2119034982 * red + 0.6806995451 * green + 0.1073969566 * blue);
    const double s = std::cbrt(0.0883024619 * red + 0.2817188376 * green + 0.6299787005 * blue);

    return {0.2104542553 * l + 0.7936177850 * m - 0.0040720468 * s,
            1.9779984951 * l - 2.4285922050 * m + 0.4505937099 * s,
            0.0259040371 * l + 0.7827717662 * m - 0.8086757660 * s};
}

double cube(double value)
{
    return value * value * value;
}

LinearRgb linearFromOklab(const Oklab &color)
{
    const double l = cube(color.lightness + 0.3963377774 * color.a + 0.2158037573 * color.b);
    const double m = cube(color.lightness - 0.1055613458 * color.a - 0.0638541728 * color.b);
    const double s = cube(color.lightness - 0.0894841775 * color.a - 1.2914855480 * color.b);

    return {4.0767416621 * l - 3.3077115913 * m + 0.2309699292 * s,
            -1.2684380046 * l + 2.6097574011 * m - 0.3413193965 * s,
            -0.0041960863 * l - 0.7034186147 * m + 1.7076147010 * s};
}

bool isShown(const LinearRgb &light)
{
    const auto isInRange = [](double channel) {
        return channel >= -gamutTolerance && channel <= 1 + gamutTolerance;
    };
    return isInRange(light.red) && isInRange(light.green) && isInRange(light.blue);
}

// Returns the light of the strongest colour that the screen shows, up to the chroma asked for.
LinearRgb shownLight(double lightness, double chroma, double hue)
{
    const double radians = qDegreesToRadians(std::isfinite(hue) ? hue : 0.0);
    const double cosine = std::cos(radians);
    const double sine = std::sin(radians);
    const auto light = [=](double strength) {
        return linearFromOklab({lightness, strength * cosine, strength * sine});
    };

    LinearRgb shown = light(chroma);
    if (isShown(shown)) {
        return shown;
    }
    double inside = 0;
    double outside = chroma;
    constexpr double precision = 1e-6;
    while (outside - inside > precision) {
        const double middle = (inside + outside) / 2;
        (isShown(light(middle)) ? inside : outside) = middle;
    }
    return light(inside);
}

} // namespace

Oklch toOklch(const QColor &color)
{
    const Oklab lab = oklabFromColor(color);
    const double chroma = std::hypot(lab.a, lab.b);
    if (chroma < greyChroma) {
        return {lab.lightness, 0, 0};
    }
    const double degrees = qRadiansToDegrees(std::atan2(lab.b, lab.a));
    return {lab.lightness, chroma, degrees < 0 ? degrees + 360 : degrees};
}

QColor toColor(const Oklch &color)
{
    const LinearRgb light = shownLight(qBound(0.0, color.lightness, 1.0),
                                       qBound(0.0, color.chroma, strongestChroma), color.hue);
    return {screenFromLinear(light.red), screenFromLinear(light.green),
            screenFromLinear(light.blue)};
}

double colorDistance(const QColor &first, const QColor &second)
{
    const Oklab one = oklabFromColor(first);
    const Oklab other = oklabFromColor(second);
    return std::hypot(one.lightness - other.lightness, one.a - other.a, one.b - other.b);
}

} // namespace TARN::ThemeTool
