// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/pixels/PixelKernel.h"

#include "engine/pixels/EncodeForStore.h"
#include "engine/pixels/PackTile.h"

namespace LumetraHost {

template <Isa isa>
void StoreKernel16<isa>::Run(const Tile& tile, const std::uint8_t* source, std::uint8_t* target,
                             const StoreParameters& parameters)
{
    if (parameters.isLinear)
        EncodeForStore<EncodePrecision::Bits16>(tile);
    PackTile<PackedPixel16>(tile, source, target, parameters.sourceWeight);
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

template struct StoreKernel16<KernelIsa>;
template struct BlendKernel16<KernelIsa>;

} // namespace LumetraHost
