#include "SimulatedVision.h"

#include <cmath>

namespace {

double linearFromScreen(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double screenFromLinear(double light)
{
    const double value = qBound(0.0, light, 1.0);
    return value <= 0.0031308 ? value * 12.92 : 1.055 * std::pow(value, 1 / 2.4) - 0.055;
}

} // namespace

// The matrices of severity 1.0 of G. M. Machado, M. M. Oliveira, L. A. F. Fernandes: "A
// Physiologically-based Model for Simulation of Color Vision Deficiency" (2009), for linear light.
const std::array<Vision, 4> &visions()
{
    static const std::array<Vision, 4> all{{
        {"usual", {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}},
        {"protanopia",
         {{{0.152286, 1.052583, -0.204868},
           {0.114503, 0.786281, 0.099216},
           {-0.003882, -0.048116, 1.051998}}}},
        {"deuteranopia",
         {{{0.367322, 0.860646, -0.227968},
           {0.280085, 0.672501, 0.047413},
           {-0.011820, 0.042940, 0.968881}}}},
        {"tritanopia",
         {{{1.255528, -0.076749, -0.178779},
           {-0.078411, 0.930809, 0.147602},
           {0.004733, 0.691367, 0.303900}}}},
    }};
    return all;
}

QColor seenBy(const Vision &vision, const QColor &color)
{
    const std::array<double, 3> light{linearFromScreen(color.redF()),
                                      linearFromScreen(color.greenF()),
                                      linearFromScreen(color.blueF())};
    std::array<double, 3> seen{};
    for (std::size_t row = 0; row < seen.size(); ++row) {
        for (std::size_t column = 0; column < light.size(); ++column) {
            seen[row] += vision.matrix[row][column] * light[column];
        }
    }
    return QColor::fromRgbF(screenFromLinear(seen[0]), screenFromLinear(seen[1]),
                            screenFromLinear(seen[2]));
}
