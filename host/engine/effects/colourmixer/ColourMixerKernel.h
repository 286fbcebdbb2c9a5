// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

namespace LumetraHost {

/// The places of eight hues on the circle, in sectors of 60 degrees.
struct HueCircle
{
    static constexpr int Hues = 8;
    static constexpr float Centres[Hues + 1] = {0, 0.5f, 1, 2, 3, 4, 4.5f, 5, 6};
};

/// An amount over the circle of hues: its value at red, and how much it rises from each hue to the
/// next one.
struct HueAmounts
{
    float start = 0;
    float rises[HueCircle::Hues] = {};
};

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
