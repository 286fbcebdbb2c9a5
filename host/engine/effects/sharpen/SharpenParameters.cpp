// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/sharpen/SharpenParameters.h"

#include "engine/base/ParameterReader.h"

namespace LumetraHost {

const std::vector<Zorvik::Quindle::EffectParameter>& SharpenParameters::Describe()
{
    static const std::vector<Zorvik::Quindle::EffectParameter> parameters = {
        {"amount", 0, 500, 0, "%"},
        {"radius", 0.005, 0.2, 0.015, "% of the diagonal"},
        {"threshold", 0, 50, 0, "8-bit steps"}};
    return parameters;
}

SharpenParameters SharpenParameters::Read(const Zorvik::Quindle::IEffectSettings& settings)
{
    const ParameterReader reader(settings, Describe());
    SharpenParameters result;
    result.amount = reader.Get("amount");
    result.radius = reader.Get("radius");
    result.threshold = reader.Get("threshold");
    return result;
}

bool operator==(const SharpenParameters& first, const SharpenParameters& second)
{
    if (first.IsIdentity() || second.IsIdentity())
        return first.IsIdentity() && second.IsIdentity();
    return first.amount == second.amount && first.radius == second.radius &&
           first.threshold == second.threshold;
}

} // namespace LumetraHost
