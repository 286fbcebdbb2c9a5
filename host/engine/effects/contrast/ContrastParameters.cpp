// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/contrast/ContrastParameters.h"

#include "engine/base/ParameterReader.h"

#include <cmath>

namespace LumetraHost {

const std::vector<Zorvik::Quindle::EffectParameter>& ContrastParameters::Describe()
{
    static const std::vector<Zorvik::Quindle::EffectParameter> parameters = {
        {"amount", -100, 100, 0, "%"}};
    return parameters;
}

ContrastParameters ContrastParameters::Read(const Zorvik::Quindle::IEffectSettings& settings)
{
    ContrastParameters result;
    result.amount = ParameterReader(settings, Describe()).Get("amount");
    return result;
}

double ContrastParameters::GetExponent() const
{
    return std::exp2(amount / 100);
}

bool operator==(const ContrastParameters& first, const ContrastParameters& second)
{
    return first.amount == second.amount;
}

} // namespace LumetraHost
