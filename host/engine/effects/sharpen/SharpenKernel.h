// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

namespace LumetraHost {

/// channel += amount * (d - clamp(d, -threshold, threshold)) with d = luma - blurredLuma
template <Isa isa>
struct SharpenKernel
{
    static void Run(const Tile& tile, const float* blurredLuma, float amount, float threshold);
};

} // namespace LumetraHost
