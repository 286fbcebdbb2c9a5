// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

namespace LumetraHost {

/// Each channel of linear light through its table over RootGrid: straight pieces between the nodes.
/// The last piece goes on beyond the grid, and values below 0 are mirrored.
template <Isa isa>
struct RootTableKernel
{
    static void Run(const Tile& tile, const float* const* tables);
};

} // namespace LumetraHost
