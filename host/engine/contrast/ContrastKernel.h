// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/Isa.h"
#include "engine/Tile.h"

namespace LumetraHost {

/// value = sign(value) * 2^(exponent * log2(abs(value)) + offset)
template <Isa isa>
struct ContrastKernel
{
    static void Run(const Tile& tile, float exponent, float offset);
};

} // namespace LumetraHost
