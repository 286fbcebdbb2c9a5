// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

namespace LumetraHost {

/// Writes the luma of Rec. 709 of each pixel, as many values as the tile has.
template <Isa isa>
struct LumaKernel
{
    static void Run(const Tile& tile, float* luma);
};

/// A weighted sum that is the same on both sides of its centre.
struct SymmetricSum
{
    const float* centre = nullptr;
    const float* const* before = nullptr; ///< one pointer per distance from 1 on
    const float* const* after = nullptr;
    const float* weights = nullptr; ///< of the centre, then of each distance
    int radius = 0;                 ///< the largest distance
};

/// target[i] = weights[0] * centre[i] + sum over d of weights[d] * (before[d-1][i] + after[d-1][i])
template <Isa isa>
struct SymmetricSumKernel
{
    static void Run(const SymmetricSum& sum, float* target, int count);
};

/// target[i] += weight * source[i]
template <Isa isa>
struct AccumulateKernel
{
    static void Run(const float* source, float weight, float* target, int count);
};

/// target[i] = low + fractions[i] * (high - low) with low = source[low[i]], high = source[high[i]]
template <Isa isa>
struct EnlargeKernel
{
    static void Run(const float* source, const int* low, const int* high, const float* fractions,
                    float* target, int count);
};

} // namespace LumetraHost
