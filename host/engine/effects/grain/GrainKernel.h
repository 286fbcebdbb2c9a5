// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

#include <cstdint>

namespace LumetraHost {

/// One layer along one row: column x lies at (u + x * ux, v + x * vx) of the lattice.
struct GrainRowLayer
{
    double u = 0;
    double ux = 0;
    double v = 0;
    double vx = 0;
    float strength = 0;
    std::uint32_t key = 0;
};

struct GrainRow
{
    GrainRowLayer layers[2];
};

/// Adds the grain to a tile of encoded values.
template <Isa isa>
struct GrainKernel
{
    static void Run(const Tile& tile, const GrainRow& row);
};

} // namespace LumetraHost
