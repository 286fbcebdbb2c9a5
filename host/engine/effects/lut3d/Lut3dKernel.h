// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

namespace LumetraHost {

/// A table as the kernel reads it: values of four floats each; a channel's place on its axis is
/// c * scale + offset, limited to 0..size - 1.
struct Lut3dGrid
{
    const float* values = nullptr; ///< null: no table
    int size = 0;
    float scale[3] = {};
    float offset[3] = {};
};

struct Lut3dNumbers
{
    Lut3dGrid curve;
    Lut3dGrid cube;
    float strength = 1;
};

/// The curve, the cube and the mixture on a tile of encoded values.
template <Isa isa>
struct Lut3dKernel
{
    static void Run(const Tile& tile, const Lut3dNumbers& numbers);
};

} // namespace LumetraHost
