// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/splittoning/SplitToningParameters.h"

#include "engine/base/ParameterReader.h"
#include "engine/base/Srgb.h"

#include <algorithm>
#include <cmath>

namespace LumetraHost {

const std::vector<Zorvik::Quindle::EffectParameter>& SplitToningParameters::Describe()
{
    static const std::vector<Zorvik::Quindle::EffectParameter> parameters = {
        {"shadowHue", 0, 360, 0, "°"},
        {"shadowSaturation", 0, 100, 0, "%"},
        {"highlightHue", 0, 360, 0, "°"},
        {"highlightSaturation", 0, 100, 0, "%"},
        {"balance", -100, 100, 0, "%"}};
    return parameters;
}

SplitToningParameters SplitToningParameters::Read(const Zorvik::Quindle::IEffectSettings& settings)
{
    const ParameterReader reader(settings, Describe());
    SplitToningParameters result;
    result.shadowHue = reader.Get("shadowHue");
    result.shadowSaturation = reader.Get("shadowSaturation");
    result.highlightHue = reader.Get("highlightHue");
    result.highlightSaturation = reader.Get("highlightSaturation");
    result.balance = reader.Get("balance");
    return result;
}

std::array<double, 3> SplitToningParameters::GetTint(double hue, double saturation)
{
    const double sector = hue / 60;
    const double red = std::clamp(std::abs(sector - 3) - 1, 0.0, 1.0);
    const double green = std::clamp(2 - std::abs(sector - 2), 0.0, 1.0);
    const double blue = std::clamp(2 - std::abs(sector - 4), 0.0, 1.0);
    const double luma = LumaRed * red + LumaGreen * green + LumaBlue * blue;
    const double strength = saturation / 200;
    return {strength * (red - luma), strength * (green - luma), strength * (blue - luma)};
}

} // namespace LumetraHost
