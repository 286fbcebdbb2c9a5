// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

#include <cstdint>

namespace LumetraHost {

/// How a table of bytes lies over encoded values: evenly from half below black to half above white.
/// Values beyond stand at the ends.
struct StoreGrid
{
    static constexpr int StepsOfUnit = 8192;
    static constexpr int Entries = 2 * StepsOfUnit;
    static constexpr float Lowest = -0.5f;
};

/// A tile into interleaved RGBA of 8 bits, each channel through its table; alpha is the source's.
/// `target` may be `source`.
template <Isa isa>
struct StoreTableKernel
{
    static void Run(const Tile& tile, const std::uint8_t* const* tables, const std::uint8_t* source,
                    std::uint8_t* target);
};

/// A table from the function's values at its places: limited to 0..1 and rounded to 0..255. Returns
/// by how much an entry is off at most in the middle between two places, in steps of 8 bits.
template <Isa isa>
struct StoreFitKernel
{
    static float Run(const float* values, std::uint8_t* table);
};

} // namespace LumetraHost
