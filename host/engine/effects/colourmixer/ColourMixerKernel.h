// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/HueCircle.h"
#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

namespace LumetraHost {

struct ColourMixerNumbers
{
    HueAmounts hue;        ///< in sectors of 60 degrees
    HueAmounts saturation; ///< -1 to 1
    HueAmounts luminance;  ///< the exponent of two
};

/// Turns, saturates and lightens a tile of encoded values by hues; see ColourMixerParameters.
template <Isa isa>
struct ColourMixerKernel
{
    static void Run(const Tile& tile, const ColourMixerNumbers& numbers);
};

} // namespace LumetraHost
