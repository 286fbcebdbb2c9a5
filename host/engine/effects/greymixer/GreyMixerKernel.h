// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/HueCircle.h"
#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

namespace LumetraHost {

struct GreyMixerNumbers
{
    float amount = 0;     ///< of grey in the colours, 0 to 1
    HueAmounts luminance; ///< the exponent of two
};

/// Mixes grey into a tile of encoded values; see GreyMixerParameters.
template <Isa isa>
struct GreyMixerKernel
{
    static void Run(const Tile& tile, const GreyMixerNumbers& numbers);
};

} // namespace LumetraHost
