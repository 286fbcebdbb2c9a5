// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/splittoning/SplitToningKernel.h"

#include "engine/kernels/KernelMath.h"
#include "image/Srgb.h"

namespace LumetraHost {

template <Isa isa>
void SplitToningKernel<isa>::Run(const Tile& tile, const SplitToningNumbers& numbers)
{
    float* __restrict red = tile.red;
    float* __restrict green = tile.green;
    float* __restrict blue = tile.blue;
    const SplitToningNumbers n = numbers;
    const int count = tile.count;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        const float luma =
            Clamp(static_cast<float>(LumaRed) * red[i] + static_cast<float>(LumaGreen) * green[i] +
                      static_cast<float>(LumaBlue) * blue[i],
                  0.0f, 1.0f);
        const float t = Clamp(luma - n.pivot + 0.5f, 0.0f, 1.0f);
        const float strength = 4.0f * luma * (1.0f - luma);
        const float highlight = strength * (t * t * (3.0f - 2.0f * t));
        const float shadow = strength - highlight;
        red[i] += shadow * n.shadow[0] + highlight * n.highlight[0];
        green[i] += shadow * n.shadow[1] + highlight * n.highlight[1];
        blue[i] += shadow * n.shadow[2] + highlight * n.highlight[2];
    }
}

template struct SplitToningKernel<KernelIsa>;

} // namespace LumetraHost
