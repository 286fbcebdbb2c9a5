// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

namespace LumetraHost {

/// value = sign(value) * 2^(exponent * log2(abs(value)) + offset)
template <Isa isa>
struct ContrastKernel
{
    static void Run(const Tile& tile, float exponent, float offset);
};

} // namespace LumetraHost
