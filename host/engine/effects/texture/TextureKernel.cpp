// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/texture/TextureKernel.h"

#include "engine/kernels/KernelMath.h"
#include "image/Srgb.h"

namespace LumetraHost {

template <Isa isa>
void TextureKernel<isa>::Run(const Tile& tile, const float* blurredLuma, float amount)
{
    float* __restrict red = tile.red;
    float* __restrict green = tile.green;
    float* __restrict blue = tile.blue;
    const float* __restrict blurred = blurredLuma;
    const int count = tile.count;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        const float luma = static_cast<float>(LumaRed) * red[i] +
                           static_cast<float>(LumaGreen) * green[i] +
                           static_cast<float>(LumaBlue) * blue[i];
        const float difference = luma - blurred[i];
        const float base = 2.0f * ClampPositive(blurred[i], 0.0f, 1.0f) - 1.0f;
        const float weight = 1.0f - base * base * base * base;
        const float change =
            amount * weight * difference / (1.0f + 100.0f * difference * difference);
        red[i] += change;
        green[i] += change;
        blue[i] += change;
    }
}

template struct TextureKernel<KernelIsa>;

} // namespace LumetraHost
