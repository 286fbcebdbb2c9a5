// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/base/HueCircle.h"

#include <cstddef>

namespace LumetraHost {

HueAmounts MakeHueAmounts(const std::array<double, HueCircle::Hues>& amounts)
{
    HueAmounts result;
    result.start = static_cast<float>(amounts[0]);
    for (std::size_t i = 0; i < amounts.size(); ++i)
        result.rises[i] = static_cast<float>(amounts[(i + 1) % amounts.size()] - amounts[i]);
    return result;
}

} // namespace LumetraHost
