// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Tile.h"
#include "engine/kernels/HueMath.h"
#include "engine/kernels/KernelLoops.h"
#include "engine/kernels/KernelMath.h"

// Only for kernel sources, see KernelMath.h: the loops over a tile that several effects share. The
// function that each of them is given must be a lambda marked with LUMETRA_KERNEL_LAMBDA.
namespace LumetraHost {

/// Stands between the parameters and the body of a lambda that a loop is to become vector code
/// with.
#define LUMETRA_KERNEL_LAMBDA __attribute__((always_inline))

/// Puts map(colour) in the place of every colour.
template <class Map>
LUMETRA_KERNEL_INLINE void MapColours(const Tile& tile, Map map)
{
    float* __restrict red = tile.red;
    float* __restrict green = tile.green;
    float* __restrict blue = tile.blue;
    const int count = tile.count;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        const KernelColour mapped = map(KernelColour{red[i], green[i], blue[i]});
        red[i] = mapped.red;
        green[i] = mapped.green;
        blue[i] = mapped.blue;
    }
}

/// Adds change(luma, blurred luma) to all channels of every colour.
template <class Change>
LUMETRA_KERNEL_INLINE void AddToChannels(const Tile& tile, const float* blurredLuma, Change change)
{
    float* __restrict red = tile.red;
    float* __restrict green = tile.green;
    float* __restrict blue = tile.blue;
    const float* __restrict blurred = blurredLuma;
    const int count = tile.count;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        const float added = change(GetLuma({red[i], green[i], blue[i]}), blurred[i]);
        red[i] += added;
        green[i] += added;
        blue[i] += added;
    }
}

} // namespace LumetraHost
