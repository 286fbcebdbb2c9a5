// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/base/PureColour.h"

#include "image/Srgb.h"

#include <algorithm>
#include <cmath>

namespace LumetraHost {

std::array<double, 3> GetPureColour(double hue)
{
    const double sector = hue / 60 - 6 * std::floor(hue / 360);
    return {std::clamp(std::abs(sector - 3) - 1, 0.0, 1.0),
            std::clamp(2 - std::abs(sector - 2), 0.0, 1.0),
            std::clamp(2 - std::abs(sector - 4), 0.0, 1.0)};
}

std::array<double, 3> GetTint(double hue, double strength)
{
    const auto [red, green, blue] = GetPureColour(hue);
    const double luma = LumaRed * red + LumaGreen * green + LumaBlue * blue;
    return {strength * (red - luma), strength * (green - luma), strength * (blue - luma)};
}

} // namespace LumetraHost
