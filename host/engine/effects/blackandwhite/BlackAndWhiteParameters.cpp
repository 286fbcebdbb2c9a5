// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/blackandwhite/BlackAndWhiteParameters.h"

#include "engine/base/ParameterReader.h"
#include "engine/base/Srgb.h"

namespace LumetraHost {

const std::vector<Zorvik::Quindle::EffectParameter>& BlackAndWhiteParameters::Describe()
{
    static const std::vector<Zorvik::Quindle::EffectParameter> parameters = {
        {"amount", 0, 100, 0, "%"},
        {"red", -2, 3, LumaRed, ""},
        {"green", -2, 3, LumaGreen, ""},
        {"blue", -2, 3, LumaBlue, ""}};
    return parameters;
}

BlackAndWhiteParameters
BlackAndWhiteParameters::Read(const Zorvik::Quindle::IEffectSettings& settings)
{
    const ParameterReader reader(settings, Describe());
    BlackAndWhiteParameters result;
    result.amount = reader.Get("amount");
    result.red = reader.Get("red");
    result.green = reader.Get("green");
    result.blue = reader.Get("blue");
    return result;
}

ColourMatrix BlackAndWhiteParameters::GetMatrix() const
{
    const double grey = amount / 100;
    const double r = grey * red;
    const double g = grey * green;
    const double b = grey * blue;
    const double kept = 1 - grey;
    return {{{{r + kept, g, b}, {r, g + kept, b}, {r, g, b + kept}}}};
}

bool operator==(const BlackAndWhiteParameters& first, const BlackAndWhiteParameters& second)
{
    if (first.IsIdentity() || second.IsIdentity())
        return first.IsIdentity() && second.IsIdentity();
    return first.amount == second.amount && first.red == second.red &&
           first.green == second.green && first.blue == second.blue;
}

} // namespace LumetraHost
