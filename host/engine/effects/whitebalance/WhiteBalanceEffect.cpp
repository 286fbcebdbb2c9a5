// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/whitebalance/WhiteBalanceEffect.h"

#include "image/Srgb.h"

#include <array>
#include <cmath>

namespace LumetraHost {
namespace {

constexpr double TintPerDuv = 3000;

// Linear sRGB to CIE XYZ, IEC 61966-2-1.
constexpr ColourMatrix RgbToXyz = {
    {{{0.4124, 0.3576, 0.1805}, {LumaRed, LumaGreen, LumaBlue}, {0.0193, 0.1192, 0.9505}}}};

// XYZ to the Bradford cone responses.
constexpr ColourMatrix XyzToCones = {
    {{{0.8951, 0.2664, -0.1614}, {-0.7502, 1.7135, 0.0367}, {0.0389, -0.0685, 1.0296}}}};

/// A chromaticity in CIE 1960 uv.
struct Chromaticity
{
    double u;
    double v;
};

Chromaticity PlanckianLocus(double kelvin)
{
    const double square = kelvin * kelvin;
    return {(0.860117757 + 1.54118254e-4 * kelvin + 1.28641212e-7 * square) /
                (1 + 8.42420235e-4 * kelvin + 7.08145163e-7 * square),
            (0.317398726 + 4.22806245e-5 * kelvin + 4.20481691e-8 * square) /
                (1 - 2.89741816e-5 * kelvin + 1.61456053e-7 * square)};
}

// Positive distances lie on the green side of the locus.
Chromaticity MoveAcrossLocus(double kelvin, double distance)
{
    const Chromaticity point = PlanckianLocus(kelvin);
    const Chromaticity before = PlanckianLocus(kelvin - 1);
    const Chromaticity after = PlanckianLocus(kelvin + 1);
    const double du = before.u - after.u;
    const double dv = before.v - after.v;
    const double length = std::hypot(du, dv);
    return {point.u - distance * dv / length, point.v + distance * du / length};
}

std::array<double, 3> ToXyz(const Chromaticity& white)
{
    const double x = 3 * white.u / (2 * white.u - 8 * white.v + 4);
    const double y = 2 * white.v / (2 * white.u - 8 * white.v + 4);
    return {x / y, 1.0, (1 - x - y) / y};
}

} // namespace

ColourMatrix WhiteBalanceParameters::GetMatrix() const
{
    const auto light = XyzToCones.Transform(ToXyz(MoveAcrossLocus(temperature, tint / TintPerDuv)));
    const auto neutral = XyzToCones.Transform(ToXyz(PlanckianLocus(NeutralTemperature)));
    const ColourMatrix toCones = XyzToCones * RgbToXyz;
    const ColourMatrix adaptation =
        toCones.Inverse() *
        ColourMatrix::Diagonal(neutral[0] / light[0], neutral[1] / light[1],
                               neutral[2] / light[2]) *
        toCones;
    const auto white = adaptation.Transform({1, 1, 1});
    const double scale = 1 / (LumaRed * white[0] + LumaGreen * white[1] + LumaBlue * white[2]);
    return ColourMatrix::Diagonal(scale, scale, scale) * adaptation;
}

} // namespace LumetraHost
