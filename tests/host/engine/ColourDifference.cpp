// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/ColourDifference.h"

#include "image/Srgb.h"

#include <cmath>
#include <cstddef>

namespace LumetraHost {
namespace {

constexpr double Pi = 3.14159265358979323846;
constexpr double Degree = Pi / 180;

/// Hue in degrees, 0 to 360; 0 for greys.
double GetHue(double a, double b)
{
    if (a == 0 && b == 0)
        return 0;
    const double hue = std::atan2(b, a) / Degree;
    return hue < 0 ? hue + 360 : hue;
}

double Power7(double value)
{
    return std::pow(value, 7);
}

constexpr double Power7Of25 = 6103515625.0;

double GetHueStep(double first, double second, double product)
{
    if (product == 0)
        return 0;
    const double step = second - first;
    if (step > 180)
        return step - 360;
    return step < -180 ? step + 360 : step;
}

double GetMeanHue(double first, double second, double product)
{
    const double sum = first + second;
    if (product == 0)
        return sum;
    if (std::abs(first - second) <= 180)
        return sum / 2;
    return (sum < 360 ? sum + 360 : sum - 360) / 2;
}

double Cube(double t)
{
    constexpr double delta = 6.0 / 29;
    return t > delta * delta * delta ? std::cbrt(t) : t / (3 * delta * delta) + 4.0 / 29;
}

} // namespace

double GetColourDifference(const LabColour& first, const LabColour& second)
{
    const double meanChroma =
        (std::hypot(first[1], first[2]) + std::hypot(second[1], second[2])) / 2;
    const double g = 0.5 * (1 - std::sqrt(Power7(meanChroma) / (Power7(meanChroma) + Power7Of25)));
    const double a1 = (1 + g) * first[1];
    const double a2 = (1 + g) * second[1];
    const double chroma1 = std::hypot(a1, first[2]);
    const double chroma2 = std::hypot(a2, second[2]);
    const double hue1 = GetHue(a1, first[2]);
    const double hue2 = GetHue(a2, second[2]);
    const double product = chroma1 * chroma2;

    const double lightStep = second[0] - first[0];
    const double chromaStep = chroma2 - chroma1;
    const double hueStep =
        2 * std::sqrt(product) * std::sin(GetHueStep(hue1, hue2, product) / 2 * Degree);

    const double light = (first[0] + second[0]) / 2;
    const double chroma = (chroma1 + chroma2) / 2;
    const double hue = GetMeanHue(hue1, hue2, product);
    const double t = 1 - 0.17 * std::cos((hue - 30) * Degree) + 0.24 * std::cos(2 * hue * Degree) +
                     0.32 * std::cos((3 * hue + 6) * Degree) -
                     0.20 * std::cos((4 * hue - 63) * Degree);
    const double rotation = 30 * std::exp(-std::pow((hue - 275) / 25, 2));
    const double spread = 2 * std::sqrt(Power7(chroma) / (Power7(chroma) + Power7Of25));
    const double fromMiddle = (light - 50) * (light - 50);
    const double lightScale = 1 + 0.015 * fromMiddle / std::sqrt(20 + fromMiddle);
    const double chromaScale = 1 + 0.045 * chroma;
    const double hueScale = 1 + 0.015 * chroma * t;
    const double l = lightStep / lightScale;
    const double c = chromaStep / chromaScale;
    const double h = hueStep / hueScale;
    return std::sqrt(l * l + c * c + h * h - std::sin(2 * rotation * Degree) * spread * c * h);
}

LabColour ToLab(const std::array<double, 3>& srgb)
{
    constexpr double toXyz[3][3] = {{0.4124564, 0.3575761, 0.1804375},
                                    {0.2126729, 0.7151522, 0.0721750},
                                    {0.0193339, 0.1191920, 0.9503041}};
    constexpr double white[3] = {0.95047, 1.0, 1.08883};
    double f[3];
    for (std::size_t i = 0; i < 3; ++i) {
        double sum = 0;
        for (std::size_t j = 0; j < 3; ++j)
            sum += toXyz[i][j] * SrgbToLinear(srgb[j]);
        f[i] = Cube(sum / white[i]);
    }
    return {116 * f[1] - 16, 500 * (f[0] - f[1]), 200 * (f[1] - f[2])};
}

} // namespace LumetraHost
