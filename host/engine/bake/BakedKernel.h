// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/Isa.h"

#include <cstddef>
#include <cstdint>

namespace LumetraHost {

/// A cube of encoded colours over the encoded colours of 8-bit pixels.
struct BakedCube
{
    static constexpr int Size = 33;   ///< entries along each axis
    static constexpr int One = 16384; ///< an entry's value for white
    static constexpr int Stride = 4;  ///< values of one entry: red, green, blue, nothing
    static constexpr std::size_t Values = std::size_t{Size} * Size * Size * Stride;
};

/// Interleaved RGBA of 8 bits through a cube, interpolated in tetrahedra (see Lut3dParameters for
/// the source), rounded to the nearest value and limited; alpha is the source's. `cube`: values
/// with red running fastest. `target` may be `source`. Integers only, so that all instruction sets
/// agree.
template <Isa isa>
struct BakedKernel8
{
    static void Run(const std::int16_t* cube, const std::uint8_t* source, std::uint8_t* target,
                    int pixels);
};

} // namespace LumetraHost
