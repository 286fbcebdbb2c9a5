// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/grain/GrainParameters.h"

#include "engine/base/ParameterReader.h"

#include <algorithm>
#include <cmath>

namespace LumetraHost {
namespace {

// 3/5 and 5/13: angles with short sines and cosines that share no direction with the picture or
// with each other.
constexpr double Cosines[2] = {4.0 / 5, 12.0 / 13};
constexpr double Sines[2] = {3.0 / 5, 5.0 / 13};

// Keeps all coordinates positive; the diagonal has at most 10,000 cells.
constexpr double LatticeOrigin = 65536;

// Deviation of lattice values from -1 to 1 after the interpolation: sqrt(1/3) times the mean square
// of Hermite's weights, 26/35, of each direction.
const double LatticeDeviation = std::sqrt(1.0 / 3) * 26.0 / 35;

GrainLayer MakeLayer(int index, double cell, const PictureArea& area)
{
    const double cosine = Cosines[index] / cell;
    const double sine = Sines[index] / cell;
    const double x = area.originX + area.scaleX / 2;
    const double y = area.originY + area.scaleY / 2;
    GrainLayer layer;
    layer.u = LatticeOrigin + x * cosine + y * sine;
    layer.ux = area.scaleX * cosine;
    layer.uy = area.scaleY * sine;
    layer.v = LatticeOrigin - x * sine + y * cosine;
    layer.vx = -area.scaleX * sine;
    layer.vy = area.scaleY * cosine;
    layer.strength = std::min(1.0, cell / std::sqrt(area.scaleX * area.scaleY));
    return layer;
}

} // namespace

const std::vector<Zorvik::Quindle::EffectParameter>& GrainParameters::Describe()
{
    static const std::vector<Zorvik::Quindle::EffectParameter> parameters = {
        {"amount", 0, 100, 0, "%"},
        {"size", 0.2, 5, 0.6, "‰"},
        {"roughness", 0, 100, 50, "%"},
        {"seed", 0, 65535, 0, ""}};
    return parameters;
}

GrainParameters GrainParameters::Read(const Zorvik::Quindle::IEffectSettings& settings)
{
    const ParameterReader reader(settings, Describe());
    GrainParameters result;
    result.amount = reader.Get("amount");
    result.size = reader.Get("size");
    result.roughness = reader.Get("roughness");
    result.seed = static_cast<int>(std::lround(reader.Get("seed")));
    return result;
}

GrainGeometry GrainGeometry::Make(const GrainParameters& parameters, const PictureArea& area)
{
    const double diagonal = std::hypot(area.pictureWidth, area.pictureHeight);
    const double cell = parameters.size / 1000 * diagonal;
    const double fine = parameters.roughness / 100;
    const double deviation = std::hypot(1 - fine, fine) * LatticeDeviation;
    const double strength = 2 * parameters.amount / 1000 / deviation;

    GrainGeometry geometry;
    geometry.layers[0] = MakeLayer(0, cell, area);
    geometry.layers[1] = MakeLayer(1, cell / 2, area);
    geometry.layers[0].strength *= strength * (1 - fine);
    geometry.layers[1].strength *= strength * fine;
    geometry.layers[0].key = static_cast<std::uint32_t>(parameters.seed);
    geometry.layers[1].key = static_cast<std::uint32_t>(parameters.seed) + 0x10000;
    return geometry;
}

} // namespace LumetraHost
