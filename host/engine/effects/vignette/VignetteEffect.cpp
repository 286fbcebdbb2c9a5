// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/vignette/VignetteEffect.h"

#include "engine/effects/MakeKind.h"
#include "engine/effects/vignette/VignetteKernel.h"
#include "engine/kernels/KernelSelection.h"

#include <algorithm>
#include <cmath>

namespace LumetraHost {
namespace {

// A hard edge is still this wide, so that the slope stays finite.
constexpr double NarrowestFeather = 1e-3;

/// The fall-off is worked out for one picture: t = d * slope + start, d^2 = (x * stepX + startX)^2
/// + (y * stepY + startY)^2 for the rendered pixel (x, y); factor = 1 + gain * w(t).
struct VignetteGeometry
{
    double stepX = 0;
    double startX = 0;
    double stepY = 0;
    double startY = 0;
    double slope = 0;
    double start = 0;
    double gain = 0;
};

VignetteGeometry MakeGeometry(const VignetteParameters& parameters, const PictureArea& area)
{
    const double halfWidth = area.pictureWidth / 2;
    const double halfHeight = area.pictureHeight / 2;
    const double round = parameters.roundness / 100;
    const double radius = std::sqrt(halfWidth * halfHeight);
    const double axisX = halfWidth + (radius - halfWidth) * round;
    const double axisY = halfHeight + (radius - halfHeight) * round;
    const double corner = std::hypot(halfWidth / axisX, halfHeight / axisY);
    const double inner = parameters.size / 100;
    const double width = std::max(parameters.feather / 100 * (1 - inner), NarrowestFeather);

    VignetteGeometry geometry;
    geometry.stepX = area.scaleX / (axisX * corner);
    geometry.startX = (area.originX + area.scaleX / 2 - halfWidth) / (axisX * corner);
    geometry.stepY = area.scaleY / (axisY * corner);
    geometry.startY = (area.originY + area.scaleY / 2 - halfHeight) / (axisY * corner);
    geometry.slope = 1 / width;
    geometry.start = -inner / width;
    geometry.gain = std::exp2(parameters.amount) - 1;
    return geometry;
}

/// The stage runs the vignette over tiles of linear light.
class VignetteStage : public Stage
{
public:
    VignetteStage(const VignetteParameters& parameters, const StageContext& context)
        : m_geometry(MakeGeometry(parameters, context.area)),
          m_kernel(SelectKernel<VignetteKernel>(context.isa))
    {
    }

    void Run(const Tile& tile) const override
    {
        const double y = tile.y * m_geometry.stepY + m_geometry.startY;
        VignetteRow row;
        row.stepX = static_cast<float>(m_geometry.stepX);
        row.startX = static_cast<float>(m_geometry.startX);
        row.distanceY2 = static_cast<float>(y * y);
        row.slope = static_cast<float>(m_geometry.slope);
        row.start = static_cast<float>(m_geometry.start);
        row.gain = static_cast<float>(m_geometry.gain);
        m_kernel(tile, row);
    }

private:
    VignetteGeometry m_geometry;
    void (*m_kernel)(const Tile&, const VignetteRow&);
};

StagePtr CreateStage(const VignetteParameters& parameters, const StageContext& context)
{
    return std::make_shared<VignetteStage>(parameters, context);
}

} // namespace

EffectKind MakeVignetteKind()
{
    return MakeKind(QT_TRANSLATE_NOOP("Effects", "Vignette"), CreateStage, EffectReach::Positional);
}

} // namespace LumetraHost
