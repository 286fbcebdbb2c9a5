// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Tile.h"
#include "engine/kernels/KernelMath.h"
#include "engine/kernels/PackedPixel.h"

// Only for kernel sources: encoded tiles become pixels of 8 or 16 bits per channel.
namespace LumetraHost {
namespace {

template <class Pixel>
struct Packing
{
    static constexpr int Bits = 2 * static_cast<int>(sizeof(Pixel));
    static constexpr int Red = GetChannelShift(0, Bits);
    static constexpr int Green = GetChannelShift(1, Bits);
    static constexpr int Blue = GetChannelShift(2, Bits);
    static constexpr std::int32_t Most = (1 << Bits) - 1;
    static constexpr Pixel AlphaMask = Pixel{Most} << GetChannelShift(3, Bits);

    /// 0 to Most, not rounded yet.
    LUMETRA_KERNEL_INLINE float Scale(float value)
    {
        return ClampPositive(value, 0.0f, 1.0f) * static_cast<float>(Most);
    }

    LUMETRA_KERNEL_INLINE float Mix(float effect, Pixel source, float weight)
    {
        const float s = static_cast<float>(static_cast<std::int32_t>(source & Most));
        return effect + weight * (s - effect);
    }

    LUMETRA_KERNEL_INLINE Pixel Round(float value)
    {
        return static_cast<std::uint32_t>(static_cast<std::int32_t>(value + 0.5f));
    }
};

template <class Pixel>
LUMETRA_KERNEL_INLINE void PackUnblended(const Tile& tile, const Pixel* source, Pixel* target)
{
    using P = Packing<Pixel>;
    const float* __restrict red = tile.red;
    const float* __restrict green = tile.green;
    const float* __restrict blue = tile.blue;
    const int count = tile.count;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i)
        target[i] = (source[i] & P::AlphaMask) | P::Round(P::Scale(red[i])) << P::Red |
                    P::Round(P::Scale(green[i])) << P::Green |
                    P::Round(P::Scale(blue[i])) << P::Blue;
}

template <class Pixel>
LUMETRA_KERNEL_INLINE void PackBlended(const Tile& tile, const Pixel* source, Pixel* target,
                                       float weight)
{
    using P = Packing<Pixel>;
    const float* __restrict red = tile.red;
    const float* __restrict green = tile.green;
    const float* __restrict blue = tile.blue;
    const int count = tile.count;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        const Pixel s = source[i];
        const float r = P::Mix(P::Scale(red[i]), s >> P::Red, weight);
        const float g = P::Mix(P::Scale(green[i]), s >> P::Green, weight);
        const float b = P::Mix(P::Scale(blue[i]), s >> P::Blue, weight);
        target[i] = (s & P::AlphaMask) | P::Round(r) << P::Red | P::Round(g) << P::Green |
                    P::Round(b) << P::Blue;
    }
}

/// Values are limited to 0..1, blended with the source's pixels and rounded; alpha is the source's.
template <class Pixel>
LUMETRA_KERNEL_INLINE void PackTile(const Tile& tile, const std::uint8_t* source,
                                    std::uint8_t* target, float sourceWeight)
{
    const auto* packedSource = reinterpret_cast<const Pixel*>(source);
    auto* packedTarget = reinterpret_cast<Pixel*>(target);
    if (sourceWeight == 0.0f)
        PackUnblended(tile, packedSource, packedTarget);
    else
        PackBlended(tile, packedSource, packedTarget, sourceWeight);
}

} // namespace
} // namespace LumetraHost
