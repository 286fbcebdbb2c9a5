// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

#include <cstddef>
#include <cstdint>

namespace LumetraHost {

/// A cube of encoded colours over the encoded colours of 8-bit pixels.
struct ColourCube
{
    static constexpr int CoarsePoints = 33; ///< entries along each axis: these
    static constexpr int FinePoints = 65;   ///< or these
    static constexpr int One = 16384;       ///< an entry's value for white
    static constexpr int Stride = 4;        ///< values of one entry: red, green, blue, mark
    static constexpr int Mark = 3; ///< 1: the cell that begins here is not to be used, else 0
    static constexpr int MostPixels = 256; ///< of one call

    static constexpr std::size_t CountValues(int points)
    {
        const auto size = static_cast<std::size_t>(points);
        return size * size * size * Stride;
    }
};

/// Pixels in cells that are not to be used.
struct MarkedPixels
{
    int count;
    std::int32_t positions[ColourCube::MostPixels];
    std::uint32_t colours[ColourCube::MostPixels]; ///< of the source, in the order of its bytes
};

/// Interleaved RGBA of 8 bits through a cube, interpolated in tetrahedra (see Lut3dParameters for
/// the source), rounded to the nearest value and limited; alpha is the source's. `cube`: values
/// with red running fastest, `points` along each axis, 33 or 65. `target` may be the source.
/// Integers only, so that all instruction sets agree. Pixels in marked cells get a colour too, and
/// are told in `rest`, with the colours that they had.
template <Isa isa>
struct ColourCubeKernel8
{
    static void Run(const std::int16_t* cube, int points, const std::uint8_t* source,
                    std::uint8_t* target, int pixels, MarkedPixels& rest);
};

/// Writes into a tile, neither rounded nor limited, in steps of 1 / ColourCube::One or finer.
template <Isa isa>
struct ColourCubeLoadKernel8
{
    static void Run(const std::int16_t* cube, int points, const std::uint8_t* source,
                    const Tile& tile, MarkedPixels& rest);
};

} // namespace LumetraHost
