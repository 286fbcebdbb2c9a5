// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/vignette/VignetteParameters.h"

#include "engine/base/ParameterReader.h"

#include <algorithm>
#include <cmath>

namespace LumetraHost {
namespace {

// A hard edge is still this wide, so that the slope stays finite.
constexpr double NarrowestFeather = 1e-3;

} // namespace

const std::vector<Zorvik::Quindle::EffectParameter>& VignetteParameters::Describe()
{
    static const std::vector<Zorvik::Quindle::EffectParameter> parameters = {
        {"amount", -5, 5, 0, "stops"},
        {"size", 0, 100, 40, "%"},
        {"feather", 0, 100, 100, "%"},
        {"roundness", 0, 100, 0, "%"}};
    return parameters;
}

VignetteParameters VignetteParameters::Read(const Zorvik::Quindle::IEffectSettings& settings)
{
    const ParameterReader reader(settings, Describe());
    VignetteParameters result;
    result.amount = reader.Get("amount");
    result.size = reader.Get("size");
    result.feather = reader.Get("feather");
    result.roundness = reader.Get("roundness");
    return result;
}

bool operator==(const VignetteParameters& first, const VignetteParameters& second)
{
    if (first.IsIdentity() || second.IsIdentity())
        return first.IsIdentity() && second.IsIdentity();
    return first.amount == second.amount && first.size == second.size &&
           first.feather == second.feather && first.roundness == second.roundness;
}

VignetteGeometry VignetteGeometry::Make(const VignetteParameters& parameters,
                                        const PictureArea& area)
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

} // namespace LumetraHost
