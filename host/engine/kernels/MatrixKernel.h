// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

namespace LumetraHost {

/// red = m[0] * red + m[1] * green + m[2] * blue, and so on by rows.
template <Isa isa>
struct MatrixKernel
{
    static void Run(const Tile& tile, const float* m);
};

/// Each channel times its own factor.
template <Isa isa>
struct ScaleKernel
{
    static void Run(const Tile& tile, const float* factors);
};

} // namespace LumetraHost
