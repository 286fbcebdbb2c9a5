// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

namespace LumetraHost {

/// The numbers of VignetteGeometry for one row; `distanceY2` is that row's share of d^2.
struct VignetteRow
{
    float stepX = 0;
    float startX = 0;
    float distanceY2 = 0;
    float slope = 0;
    float start = 0;
    float gain = 0;
};

/// Multiplies the tile by the fall-off.
template <Isa isa>
struct VignetteKernel
{
    static void Run(const Tile& tile, const VignetteRow& row);
};

} // namespace LumetraHost
