// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

namespace LumetraHost {

/// channel += amount * (1 - (2 b - 1)^4) * d / (1 + 100 d^2) with d = luma - blurredLuma and b =
/// blurredLuma clamped to 0..1
template <Isa isa>
struct TextureKernel
{
    static void Run(const Tile& tile, const float* blurredLuma, float amount);
};

} // namespace LumetraHost
