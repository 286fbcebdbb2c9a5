// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

#include <cstdint>

namespace LumetraHost {

/// How a table of a function lies over floats: 64 straight pieces for each octave of 2^-20 to 128,
/// one from zero to the first of them, and all of that once more for negative values. A piece is
/// found from the top bits of a float; values beyond 128 are limited to it.
struct CurveGrid
{
    static constexpr int Shift = 17; ///< the bits of a float that tell the place within a piece
    static constexpr std::int32_t LowBits = (127 - 20) << 23;
    static constexpr std::int32_t HighBits = (127 + 7) << 23;
    static constexpr int Pieces = 1 + ((HighBits - LowBits) >> Shift); ///< of one sign
    static constexpr int Samples = 2 * Pieces + 1; ///< of one sign: ends and middles of pieces
    static constexpr int Values = 2 * 2 * Pieces;  ///< what each piece adds and what it multiplies
};

/// value = table[2 * piece] + table[2 * piece + 1] * value with a table for each channel.
template <Isa isa>
struct CurveTableKernel
{
    static void Run(const Tile& tile, const float* const* tables);
};

/// Makes the pieces of one sign from the function's `values` at the `places` of the samples. Each
/// line is off by as much at the ends of its piece as in the middle. Returns the largest such error
/// in steps of 8 bits, where it can be seen; `isLinear`: values are linear light.
template <Isa isa>
struct CurveFitKernel
{
    static float Run(const float* places, const float* values, bool isLinear, float* table);
};

} // namespace LumetraHost
