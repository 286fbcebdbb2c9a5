// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/lut3d/Lut3dParameters.h"

#include "engine/base/ParameterReader.h"

namespace LumetraHost {

const std::vector<Zorvik::Quindle::EffectParameter>& Lut3dParameters::Describe()
{
    static const std::vector<Zorvik::Quindle::EffectParameter> parameters = {
        {"strength", 0, 100, 100, "%"}};
    return parameters;
}

Lut3dParameters Lut3dParameters::Read(const Zorvik::Quindle::IEffectSettings& settings)
{
    Lut3dParameters result;
    result.strength = ParameterReader(settings, Describe()).Get("strength");
    return result;
}

} // namespace LumetraHost
