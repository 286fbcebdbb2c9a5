// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Tile.h"

#include <cstdint>

namespace LumetraHost {

/// Interleaved RGBA with 8 bits per channel into a tile, each channel through its table of 256
/// entries, which may decode it or do more. `source` is the row's first pixel of the tile. There is
/// no kernel per instruction set: reading tables gains nothing from vector registers, and gather
/// instructions take two and a half times as long as single loads (measured with AVX-512 on a
/// Xeon).
void LoadThroughTables8(const Tile& tile, const std::uint8_t* source, const float* const* tables);

/// Reads 16 bits per channel, with tables of 65,536 entries.
void LoadThroughTables16(const Tile& tile, const std::uint8_t* source, const float* const* tables);

} // namespace LumetraHost
