// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

namespace LumetraHost {

/// Both tints (red, green, blue) and the luma between them.
struct SplitToningNumbers
{
    float shadow[3] = {};
    float highlight[3] = {};
    float pivot = 0.5f;
};

/// Adds the tints to a tile of encoded values.
template <Isa isa>
struct SplitToningKernel
{
    static void Run(const Tile& tile, const SplitToningNumbers& numbers);
};

} // namespace LumetraHost
