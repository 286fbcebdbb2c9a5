// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/vibrance/VibranceParameters.h"

#include "engine/base/ParameterReader.h"

namespace LumetraHost {

const std::vector<Zorvik::Quindle::EffectParameter>& VibranceParameters::Describe()
{
    static const std::vector<Zorvik::Quindle::EffectParameter> parameters = {
        {"amount", -100, 100, 0, "%"}};
    return parameters;
}

VibranceParameters VibranceParameters::Read(const Zorvik::Quindle::IEffectSettings& settings)
{
    VibranceParameters result;
    result.amount = ParameterReader(settings, Describe()).Get("amount");
    return result;
}

} // namespace LumetraHost
