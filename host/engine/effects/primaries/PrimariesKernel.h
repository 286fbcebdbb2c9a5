// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

namespace LumetraHost {

/// A matrix by rows that keeps greys and luma, and the tint of the shadows (red, green, blue).
struct PrimariesNumbers
{
    float matrix[9] = {};
    float tint[3] = {};
};

/// Mixes a tile of encoded values by the matrix and tints its shadows.
template <Isa isa>
struct PrimariesKernel
{
    static void Run(const Tile& tile, const PrimariesNumbers& numbers);
};

} // namespace LumetraHost
