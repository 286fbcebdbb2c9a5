// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/localcontrast/LocalContrastKernels.h"

#include "engine/kernels/ColourLoops.h"

namespace LumetraHost {

template <Isa isa>
void TextureKernel<isa>::Run(const Tile& tile, const float* blurredLuma, float amount)
{
    AddToChannels(tile, blurredLuma, [amount](float luma, float blurred) LUMETRA_KERNEL_LAMBDA {
        const float difference = luma - blurred;
        const float base = 2.0f * ClampPositive(blurred, 0.0f, 1.0f) - 1.0f;
        const float weight = 1.0f - base * base * base * base;
        return amount * weight * difference / (1.0f + 100.0f * difference * difference);
    });
}

template <Isa isa>
void ClarityKernel<isa>::Run(const Tile& tile, const float* blurredLuma, float amount)
{
    AddToChannels(tile, blurredLuma, [amount](float luma, float blurred) LUMETRA_KERNEL_LAMBDA {
        const float difference = luma - blurred;
        const float base = ClampPositive(blurred, 0.0f, 1.0f);
        const float weight = 4.0f * base * (1.0f - base);
        return amount * weight * difference / (1.0f + 2.0f * GetSize(difference));
    });
}

template struct TextureKernel<KernelIsa>;
template struct ClarityKernel<KernelIsa>;

} // namespace LumetraHost
