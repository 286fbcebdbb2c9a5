// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/vignette/VignetteKernel.h"

#include "engine/kernels/KernelMath.h"

namespace LumetraHost {

template <Isa isa>
void VignetteKernel<isa>::Run(const Tile& tile, const VignetteRow& row)
{
    float* __restrict red = tile.red;
    float* __restrict green = tile.green;
    float* __restrict blue = tile.blue;
    const VignetteRow v = row;
    const int first = tile.x;
    const int count = tile.count;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        // Computed from the column, not by adding up, so that every tiling gives the same values.
        const float x = static_cast<float>(first + i) * v.stepX + v.startX;
        const float distance = __builtin_sqrtf(x * x + v.distanceY2);
        const float t = ClampPositive(distance * v.slope + v.start, 0.0f, 1.0f);
        const float factor = 1.0f + v.gain * (t * t * (3.0f - 2.0f * t));
        red[i] *= factor;
        green[i] *= factor;
        blue[i] *= factor;
    }
}

template struct VignetteKernel<KernelIsa>;

} // namespace LumetraHost
