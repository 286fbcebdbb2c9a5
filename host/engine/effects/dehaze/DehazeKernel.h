// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

namespace LumetraHost {

/// The haze of one row. Column x of the picture lies at start + x * step of the map's columns,
/// whose values are interpolated.
struct DehazeRow
{
    const float* slopes;
    const float* offsets;
    float last; ///< the last column of the map
    float start;
    float step;
};

struct DehazeNumbers
{
    float airLight[3];
    float leastTransmission;
    float exponent; ///< the distance from the air light is multiplied by transmission^exponent ...
    float shift;    ///< ... and by 2^shift
};

/// Moves encoded colours away from the air light or towards it; see DehazeParameters.
template <Isa isa>
struct DehazeKernel
{
    static void Run(const Tile& tile, const DehazeRow& row, const DehazeNumbers& numbers);
};

} // namespace LumetraHost
