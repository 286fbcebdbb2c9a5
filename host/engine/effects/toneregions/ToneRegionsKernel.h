// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

namespace LumetraHost {

/// The gain in stops as a sum over the pieces of the curve, with the identity taken off:
/// base + sum of t * (linear + t * (square + t * cube)), t = s - start limited to 0..width.
struct ToneRegionsNumbers
{
    static constexpr int Pieces = 4;

    float base = 0;
    float start[Pieces] = {};
    float width[Pieces] = {};
    float linear[Pieces] = {};
    float square[Pieces] = {};
    float cube[Pieces] = {};
};

/// Multiplies the tile of linear light by the gain of each pixel's luminance.
template <Isa isa>
struct ToneRegionsKernel
{
    static void Run(const Tile& tile, const ToneRegionsNumbers& numbers);
};

} // namespace LumetraHost
