// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <array>

namespace LumetraHost {

/// L*, a*, b* of CIE 1976.
using LabColour = std::array<double, 3>;

/// The colour difference CIEDE2000 with all weights 1, as Sharma, Wu and Dalal describe it.
double GetColourDifference(const LabColour& first, const LabColour& second);

/// From encoded sRGB, 0 to 1, for white D65.
LabColour ToLab(const std::array<double, 3>& srgb);

} // namespace LumetraHost
