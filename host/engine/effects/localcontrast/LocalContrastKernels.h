// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

namespace LumetraHost {

// In both kernels d = luma - blurredLuma, and b = blurredLuma limited to 0..1.

/// channel += amount * (1 - (2 b - 1)^4) * d / (1 + 100 d^2)
template <Isa isa>
struct TextureKernel
{
    static void Run(const Tile& tile, const float* blurredLuma, float amount);
};

/// channel += amount * 4 b (1 - b) * d / (1 + 2 |d|)
template <Isa isa>
struct ClarityKernel
{
    static void Run(const Tile& tile, const float* blurredLuma, float amount);
};

} // namespace LumetraHost
