// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <limits>

namespace Zorvik::Lumetra::LumetraPresets {

/// Returns `number` truncated towards zero and held at the ends of int's range. NaN gives 0. A bare
/// cast would be undefined outside that range.
inline int SaturatedInt(double number)
{
    if (std::isnan(number))
        return 0;
    if (number <= static_cast<double>(std::numeric_limits<int>::min()))
        return std::numeric_limits<int>::min();
    if (number >= static_cast<double>(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    return static_cast<int>(number);
}

} // namespace Zorvik::Lumetra::LumetraPresets
