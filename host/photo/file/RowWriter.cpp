// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/file/RowWriter.h"

#include <limits>

namespace LumetraHost {
namespace {

constexpr int ColorChannels = 3;

template <class Value>
const Value* TypedRow(const Image& image, int y)
{
    return reinterpret_cast<const Value*>(image.Row(y));
}

template <class Value>
void DropAlpha(const Image& image, int y, Value* target)
{
    const Value* const row = TypedRow<Value>(image, y);
    for (int x = 0; x < image.GetWidth(); ++x) {
        for (int channel = 0; channel < ColorChannels; ++channel)
            target[ColorChannels * x + channel] = row[Image::Channels * x + channel];
    }
}

/// 255 * (color * alpha + white * (white - alpha)) / white^2, to the nearest.
template <class Value>
void FlattenOverWhite(const Image& image, int y, std::uint8_t* target)
{
    constexpr std::uint64_t white = std::numeric_limits<Value>::max();
    const Value* const row = TypedRow<Value>(image, y);
    for (int x = 0; x < image.GetWidth(); ++x) {
        const std::uint64_t alpha = row[Image::Channels * x + ColorChannels];
        for (int channel = 0; channel < ColorChannels; ++channel) {
            const std::uint64_t color = row[Image::Channels * x + channel];
            const std::uint64_t sum = color * alpha + white * (white - alpha);
            target[ColorChannels * x + channel] =
                static_cast<std::uint8_t>((255 * sum + white * white / 2) / (white * white));
        }
    }
}

} // namespace

void FlattenRow8(const Image& image, int y, std::uint8_t* target)
{
    if (image.GetDepth() == Image::Depth::Bits16)
        FlattenOverWhite<std::uint16_t>(image, y, target);
    else
        FlattenOverWhite<std::uint8_t>(image, y, target);
}

void CopyRowWithoutAlpha(const Image& image, int y, std::uint8_t* target)
{
    if (image.GetDepth() == Image::Depth::Bits16)
        DropAlpha(image, y, reinterpret_cast<std::uint16_t*>(target));
    else
        DropAlpha(image, y, target);
}

} // namespace LumetraHost
