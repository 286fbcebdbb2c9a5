// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/gaussianblur/GaussianBlurParameters.h"

#include "engine/base/ParameterReader.h"

namespace LumetraHost {

const std::vector<Zorvik::Quindle::EffectParameter>& GaussianBlurParameters::Describe()
{
    static const std::vector<Zorvik::Quindle::EffectParameter> parameters = {
        {"radius", 0, 5, 0, "% of the diagonal"}};
    return parameters;
}

GaussianBlurParameters
GaussianBlurParameters::Read(const Zorvik::Quindle::IEffectSettings& settings)
{
    const ParameterReader reader(settings, Describe());
    GaussianBlurParameters result;
    result.radius = reader.Get("radius");
    return result;
}

bool operator==(const GaussianBlurParameters& first, const GaussianBlurParameters& second)
{
    if (first.IsIdentity() || second.IsIdentity())
        return first.IsIdentity() && second.IsIdentity();
    return first.radius == second.radius;
}

} // namespace LumetraHost
