// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/clarity/ClarityParameters.h"

#include "engine/base/ParameterReader.h"

namespace LumetraHost {

const std::vector<Zorvik::Quindle::EffectParameter>& ClarityParameters::Describe()
{
    static const std::vector<Zorvik::Quindle::EffectParameter> parameters = {
        {"amount", -100, 100, 0, "%"}, {"radius", 0.2, 3, 1, "% of the diagonal"}};
    return parameters;
}

ClarityParameters ClarityParameters::Read(const Zorvik::Quindle::IEffectSettings& settings)
{
    const ParameterReader reader(settings, Describe());
    ClarityParameters result;
    result.amount = reader.Get("amount");
    result.radius = reader.Get("radius");
    return result;
}

bool operator==(const ClarityParameters& first, const ClarityParameters& second)
{
    if (first.IsIdentity() || second.IsIdentity())
        return first.IsIdentity() && second.IsIdentity();
    return first.amount == second.amount && first.radius == second.radius;
}

} // namespace LumetraHost
