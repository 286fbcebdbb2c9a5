// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/sharpen/SharpenKernel.h"

#include "engine/kernels/ColourLoops.h"

namespace LumetraHost {

template <Isa isa>
void SharpenKernel<isa>::Run(const Tile& tile, const float* blurredLuma, float amount,
                             float threshold)
{
    AddToChannels(tile, blurredLuma,
                  [amount, threshold](float luma, float blurred) LUMETRA_KERNEL_LAMBDA {
                      const float difference = luma - blurred;
                      const float size = GetSize(difference);
                      const float beyond = size - ClampPositive(size, 0.0f, threshold);
                      return amount * WithSignOf(beyond, difference);
                  });
}

template struct SharpenKernel<KernelIsa>;

} // namespace LumetraHost
