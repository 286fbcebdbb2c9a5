// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/saturation/SaturationParameters.h"

#include "engine/base/ParameterReader.h"
#include "engine/base/Srgb.h"

namespace LumetraHost {

const std::vector<Zorvik::Quindle::EffectParameter>& SaturationParameters::Describe()
{
    static const std::vector<Zorvik::Quindle::EffectParameter> parameters = {
        {"amount", -100, 100, 0, "%"}};
    return parameters;
}

SaturationParameters SaturationParameters::Read(const Zorvik::Quindle::IEffectSettings& settings)
{
    SaturationParameters result;
    result.amount = ParameterReader(settings, Describe()).Get("amount");
    return result;
}

ColourMatrix SaturationParameters::GetMatrix() const
{
    const double s = 1 + amount / 100;
    const double red = (1 - s) * LumaRed;
    const double green = (1 - s) * LumaGreen;
    const double blue = (1 - s) * LumaBlue;
    return {{{{red + s, green, blue}, {red, green + s, blue}, {red, green, blue + s}}}};
}

bool operator==(const SaturationParameters& first, const SaturationParameters& second)
{
    return first.amount == second.amount;
}

} // namespace LumetraHost
