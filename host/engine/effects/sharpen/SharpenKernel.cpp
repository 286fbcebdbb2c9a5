// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/sharpen/SharpenKernel.h"

#include "engine/kernels/KernelMath.h"
#include "image/Srgb.h"

namespace LumetraHost {

template <Isa isa>
void SharpenKernel<isa>::Run(const Tile& tile, const float* blurredLuma, float amount,
                             float threshold)
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
        const float size = GetSize(difference);
        const float beyond = size - ClampPositive(size, 0.0f, threshold);
        const float change = amount * WithSignOf(beyond, difference);
        red[i] += change;
        green[i] += change;
        blue[i] += change;
    }
}

template struct SharpenKernel<KernelIsa>;

} // namespace LumetraHost
