// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/pixels/PixelKernel.h"

#include "engine/kernels/KernelMath.h"
#include "engine/kernels/PackedPixel.h"
#include "engine/pixels/EncodeForStore.h"
#include "engine/pixels/PackTile.h"

namespace LumetraHost {
namespace {

constexpr int Red = GetChannelShift(0, 8);
constexpr int Green = GetChannelShift(1, 8);
constexpr int Blue = GetChannelShift(2, 8);

LUMETRA_KERNEL_INLINE float Scale(std::uint32_t value)
{
    return static_cast<float>(static_cast<std::int32_t>(value & 0xFF)) * (1.0f / 255.0f);
}

} // namespace

template <Isa isa>
void LoadUnitKernel8<isa>::Run(const Tile& tile, const std::uint8_t* source)
{
    const auto* pixels = reinterpret_cast<const PackedPixel8*>(source);
    float* __restrict red = tile.red;
    float* __restrict green = tile.green;
    float* __restrict blue = tile.blue;
    const int count = tile.count;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        const std::uint32_t pixel = pixels[i];
        red[i] = Scale(pixel >> Red);
        green[i] = Scale(pixel >> Green);
        blue[i] = Scale(pixel >> Blue);
    }
}

template <Isa isa>
void StoreKernel8<isa>::Run(const Tile& tile, const std::uint8_t* source, std::uint8_t* target,
                            const StoreParameters& parameters)
{
    if (parameters.isLinear)
        EncodeForStore<EncodePrecision::Bits8>(tile);
    PackTile<PackedPixel8>(tile, source, target, parameters.sourceWeight);
}

template <Isa isa>
void BlendKernel8<isa>::Run(const std::uint8_t* source, const std::uint8_t* effect,
                            std::uint8_t* target, int pixels, int blendAmount)
{
    // 255 * 254 + 127 fits into 16 bits, which doubles the width of the vectors.
    const auto sourceWeight = static_cast<std::uint16_t>(blendAmount - 1);
    const auto effectWeight = static_cast<std::uint16_t>(255 - blendAmount);
    for (int i = 0; i < 4 * pixels; ++i) {
        const auto sum =
            static_cast<std::uint16_t>(source[i] * sourceWeight + effect[i] * effectWeight + 127);
        target[i] = static_cast<std::uint8_t>(sum / 254);
    }
}

template struct LoadUnitKernel8<KernelIsa>;
template struct StoreKernel8<KernelIsa>;
template struct BlendKernel8<KernelIsa>;

} // namespace LumetraHost
