// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

namespace LumetraHost {

/// sRGB-encoded to linear, unclamped.
template <Isa isa>
struct SrgbDecodeKernel
{
    static void Run(const Tile& tile);
};

/// Linear to sRGB-encoded, unclamped.
template <Isa isa>
struct SrgbEncodeKernel
{
    static void Run(const Tile& tile);
};

} // namespace LumetraHost
