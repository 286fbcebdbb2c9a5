// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/pixels/PixelKernel.h"

#include "engine/kernels/KernelMath.h"
#include "engine/pixels/EncodeForStore.h"
#include "engine/pixels/PackedPixel.h"

namespace LumetraHost {
namespace {

constexpr int Red = GetChannelShift(0, 16);
constexpr int Green = GetChannelShift(1, 16);
constexpr int Blue = GetChannelShift(2, 16);
constexpr std::uint64_t AlphaMask = std::uint64_t{0xFFFF} << GetChannelShift(3, 16);

/// Values of 0..65535, not rounded yet.
LUMETRA_KERNEL_INLINE float Mix(float effect, std::uint64_t source, float weight)
{
    const float s = static_cast<float>(static_cast<std::int32_t>(source & 0xFFFF));
    return effect + weight * (s - effect);
}

LUMETRA_KERNEL_INLINE std::uint64_t Round(float value)
{
    return static_cast<std::uint32_t>(static_cast<std::int32_t>(value + 0.5f));
}

LUMETRA_KERNEL_INLINE void Pack(const Tile& tile, const PackedPixel16* source,
                                PackedPixel16* target)
{
    const float* __restrict red = tile.red;
    const float* __restrict green = tile.green;
    const float* __restrict blue = tile.blue;
    const int count = tile.count;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i)
        target[i] = (source[i] & AlphaMask) | Round(red[i] * 65535.0f) << Red |
                    Round(green[i] * 65535.0f) << Green | Round(blue[i] * 65535.0f) << Blue;
}

LUMETRA_KERNEL_INLINE void PackBlended(const Tile& tile, const PackedPixel16* source,
                                       PackedPixel16* target, float weight)
{
    const float* __restrict red = tile.red;
    const float* __restrict green = tile.green;
    const float* __restrict blue = tile.blue;
    const int count = tile.count;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        const std::uint64_t s = source[i];
        const float r = Mix(red[i] * 65535.0f, s >> Red, weight);
        const float g = Mix(green[i] * 65535.0f, s >> Green, weight);
        const float b = Mix(blue[i] * 65535.0f, s >> Blue, weight);
        target[i] = (s & AlphaMask) | Round(r) << Red | Round(g) << Green | Round(b) << Blue;
    }
}

} // namespace

template <Isa isa>
void LoadKernel16<isa>::Run(const Tile& tile, const std::uint8_t* source,
                            const float* const* tables)
{
    const float* const redTable = tables[0];
    const float* const greenTable = tables[1];
    const float* const blueTable = tables[2];
    const auto* values = reinterpret_cast<const std::uint16_t*>(source);
    float* __restrict red = tile.red;
    float* __restrict green = tile.green;
    float* __restrict blue = tile.blue;
    const int count = tile.count;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        red[i] = redTable[values[4 * i]];
        green[i] = greenTable[values[4 * i + 1]];
        blue[i] = blueTable[values[4 * i + 2]];
    }
}

template <Isa isa>
void StoreKernel16<isa>::Run(const Tile& tile, const std::uint8_t* source, std::uint8_t* target,
                             const StoreParameters& parameters)
{
    const auto* packedSource = reinterpret_cast<const PackedPixel16*>(source);
    auto* packedTarget = reinterpret_cast<PackedPixel16*>(target);
    EncodeForStore<EncodePrecision::Bits16>(tile, parameters.isLinear);
    if (parameters.sourceWeight == 0.0f)
        Pack(tile, packedSource, packedTarget);
    else
        PackBlended(tile, packedSource, packedTarget, parameters.sourceWeight);
}

template <Isa isa>
void BlendKernel16<isa>::Run(const std::uint8_t* source, const std::uint8_t* effect,
                             std::uint8_t* target, int pixels, int blendAmount)
{
    const auto* sourceValues = reinterpret_cast<const std::uint16_t*>(source);
    const auto* effectValues = reinterpret_cast<const std::uint16_t*>(effect);
    auto* targetValues = reinterpret_cast<std::uint16_t*>(target);
    const auto sourceWeight = static_cast<std::uint32_t>(blendAmount - 1);
    const auto effectWeight = static_cast<std::uint32_t>(255 - blendAmount);
    for (int i = 0; i < 4 * pixels; ++i)
        targetValues[i] = static_cast<std::uint16_t>(
            (sourceValues[i] * sourceWeight + effectValues[i] * effectWeight + 127) / 254);
}

template struct LoadKernel16<KernelIsa>;
template struct StoreKernel16<KernelIsa>;
template struct BlendKernel16<KernelIsa>;

} // namespace LumetraHost
