// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

namespace LumetraHost {

/// c = luma + (1 + amount * (1 - S)) * (c - luma); amount is -1 to 1.
template <Isa isa>
struct VibranceKernel
{
    static void Run(const Tile& tile, const float& amount);
};

} // namespace LumetraHost
