// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/pixels/TableLoad.h"

#include "engine/kernels/KernelLoops.h"

namespace LumetraHost {
namespace {

template <class Channel>
void Load(const Tile& tile, const Channel* source, const float* const* tables)
{
    const float* const redTable = tables[0];
    const float* const greenTable = tables[1];
    const float* const blueTable = tables[2];
    float* __restrict red = tile.red;
    float* __restrict green = tile.green;
    float* __restrict blue = tile.blue;
    const int count = tile.count;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        red[i] = redTable[source[4 * i]];
        green[i] = greenTable[source[4 * i + 1]];
        blue[i] = blueTable[source[4 * i + 2]];
    }
}

} // namespace

void LoadThroughTables8(const Tile& tile, const std::uint8_t* source, const float* const* tables)
{
    Load(tile, source, tables);
}

void LoadThroughTables16(const Tile& tile, const std::uint8_t* source, const float* const* tables)
{
    Load(tile, reinterpret_cast<const std::uint16_t*>(source), tables);
}

} // namespace LumetraHost
