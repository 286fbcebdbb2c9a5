// SPDX-License-Identifier: GPL-2.0-or-later
#include "image/DepthConversion.h"

#include <algorithm>
#include <cstring>

namespace LumetraHost {
namespace {

std::uint16_t Widen(std::uint8_t value)
{
    return static_cast<std::uint16_t>(value * 257);
}

std::uint8_t Round(std::uint16_t value)
{
    return static_cast<std::uint8_t>((value * 255U + 32767U) / 65535U);
}

void CopyRow(const Image& source, int y, Image& target, int targetY)
{
    const bool isWide = source.GetDepth() == Image::Depth::Bits16;
    const int values = source.GetWidth() * Image::Channels;
    if (source.GetDepth() == target.GetDepth())
        std::memcpy(target.Row(targetY), source.Row(y),
                    static_cast<std::size_t>(values) * source.GetBytesPerChannel());
    else if (isWide)
        std::transform(source.Row16(y), source.Row16(y) + values, target.Row(targetY), Round);
    else
        std::transform(source.Row(y), source.Row(y) + values, target.Row16(targetY), Widen);
}

} // namespace

void CopyRows(const Image& source, int first, Image& target, int targetFirst, int count)
{
    for (int i = 0; i < count; ++i)
        CopyRow(source, first + i, target, targetFirst + i);
}

} // namespace LumetraHost
