// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/kernels/ColourCubeKernel.h"

#include <cstdint>

// Only for kernel sources: what the ways of drawing from a cube of colours have in common.
namespace LumetraHost {
namespace {

/// Rounding to the nearest, and from ColourCube::One * 255 to 255.
constexpr std::int32_t Half = ColourCube::One / 2;
constexpr int Shift = 14;
static_assert(1 << Shift == ColourCube::One);

/// Cells along an axis, and how far apart the entries of neighbours are.
template <int points>
struct Lattice
{
    static constexpr std::int32_t Cells = points - 1;
    static constexpr std::int32_t RedStride = ColourCube::Stride;
    static constexpr std::int32_t GreenStride = RedStride * points;
    static constexpr std::int32_t BlueStride = GreenStride * points;
    static_assert(RedStride + GreenStride + BlueStride < 1 << 15);
};

} // namespace
} // namespace LumetraHost
