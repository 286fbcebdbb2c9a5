// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

namespace LumetraHost {

/// The numbers of LiftGammaGainParameters. A step that changes nothing is not computed.
struct LiftGammaGainNumbers
{
    float slope[3] = {1, 1, 1};
    float offset[3] = {};
    float power[3] = {1, 1, 1};
    float saturation = 1;
    bool hasPower = false;
    bool clamp = false;
};

/// Slope, offset, power and saturation on a tile of encoded values.
template <Isa isa>
struct LiftGammaGainKernel
{
    static void Run(const Tile& tile, const LiftGammaGainNumbers& numbers);
};

} // namespace LumetraHost
