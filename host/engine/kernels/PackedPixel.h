// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstdint>

// Only for kernel sources: whole pixels as one integer. Loops over them vectorise without
// shuffling single channels.
namespace LumetraHost {

using PackedPixel8 = std::uint32_t __attribute__((__may_alias__));
using PackedPixel16 = std::uint64_t __attribute__((__may_alias__));

/// Where channel 0 to 3 (red, green, blue, alpha) stands in the integer.
constexpr int GetChannelShift(int channel, int bits)
{
#if __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
    return channel * bits;
#else
    return (3 - channel) * bits;
#endif
}

} // namespace LumetraHost
