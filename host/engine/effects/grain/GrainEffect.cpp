// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/grain/GrainEffect.h"

#include "engine/effects/MakeKind.h"
#include "engine/effects/grain/GrainKernel.h"
#include "engine/kernels/KernelSelection.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace LumetraHost {
namespace {

/// A layer of noise is worked out for one picture. The rendered pixel (x, y) lies at (u + x * ux +
/// y * uy, v + x * vx + y * vy) of the lattice, which is positive.
struct GrainLayer
{
    double u = 0;
    double ux = 0;
    double uy = 0;
    double v = 0;
    double vx = 0;
    double vy = 0;
    double strength = 0; ///< of lattice values from -1 to 1
    std::uint32_t key = 0;
};

/// Both layers are worked out for one picture.
struct GrainGeometry
{
    GrainLayer layers[2];
};

// These angles have short sines and cosines, and share no direction with the picture or with each
// other.
constexpr double Cosines[2] = {4.0 / 5, 12.0 / 13};
constexpr double Sines[2] = {3.0 / 5, 5.0 / 13};

// The origin keeps all coordinates positive, as the diagonal has at most 10,000 cells.
constexpr double LatticeOrigin = 65536;

// Lattice values from -1 to 1 have this deviation after the interpolation: sqrt(1/3) times the mean
// square of Hermite's weights, 26/35, of each direction.
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

GrainGeometry MakeGeometry(const GrainParameters& parameters, const PictureArea& area)
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
    geometry.layers[0].key = static_cast<std::uint32_t>(std::lround(parameters.seed));
    geometry.layers[1].key = geometry.layers[0].key + 0x10000;
    return geometry;
}

/// The stage adds grain to tiles of encoded values.
class GrainStage : public Stage
{
public:
    GrainStage(const GrainParameters& parameters, const StageContext& context)
        : m_geometry(MakeGeometry(parameters, context.area)),
          m_kernel(SelectKernel<GrainKernel>(context.isa))
    {
    }

    void Run(const Tile& tile) const override
    {
        GrainRow row;
        for (std::size_t i = 0; i < 2; ++i) {
            const GrainLayer& layer = m_geometry.layers[i];
            row.layers[i] = {layer.u + tile.y * layer.uy,        layer.ux,
                             layer.v + tile.y * layer.vy,        layer.vx,
                             static_cast<float>(layer.strength), layer.key};
        }
        m_kernel(tile, row);
    }
    ColourSpace GetColourSpace() const override { return ColourSpace::Encoded; }

private:
    GrainGeometry m_geometry;
    void (*m_kernel)(const Tile&, const GrainRow&);
};

StagePtr CreateStage(const GrainParameters& parameters, const StageContext& context)
{
    return std::make_shared<GrainStage>(parameters, context);
}

} // namespace

EffectKind MakeGrainKind()
{
    return MakeKind(QT_TRANSLATE_NOOP("Effects", "Grain"), CreateStage, EffectReach::Positional);
}

} // namespace LumetraHost
