// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

#include <cstdint>

namespace LumetraHost {

/// Interleaved RGBA with 8 bits per channel into a tile, scaled to 0..1. `source` is the row's
/// first pixel of the tile.
template <Isa isa>
struct LoadUnitKernel8
{
    static void Run(const Tile& tile, const std::uint8_t* source);
};

/// How a tile becomes pixels.
struct StoreParameters
{
    bool isLinear = true;      ///< the tile is linear light and is encoded first
    float sourceWeight = 0.0f; ///< of the source's pixels, 0 to 1
};

/// A tile into interleaved RGBA: clamped to 0..1, encoded, blended with the source's pixels,
/// rounded to the nearest value. Alpha is the source's. `target` may be `source`. Overwrites the
/// tile's planes.
template <Isa isa>
struct StoreKernel8
{
    static void Run(const Tile& tile, const std::uint8_t* source, std::uint8_t* target,
                    const StoreParameters& parameters);
};

/// Stores 16 bits per channel.
template <Isa isa>
struct StoreKernel16
{
    static void Run(const Tile& tile, const std::uint8_t* source, std::uint8_t* target,
                    const StoreParameters& parameters);
};

/// target = (source * (b - 1) + effect * (255 - b) + 127) / 254 in integers, for each of `pixels`
/// pixels and channels red, green, blue; alpha is the source's. 1 <= b <= 255.
template <Isa isa>
struct BlendKernel8
{
    static void Run(const std::uint8_t* source, const std::uint8_t* effect, std::uint8_t* target,
                    int pixels, int blendAmount);
};

/// Blends 16 bits per channel.
template <Isa isa>
struct BlendKernel16
{
    static void Run(const std::uint8_t* source, const std::uint8_t* effect, std::uint8_t* target,
                    int pixels, int blendAmount);
};

} // namespace LumetraHost
