// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/primaries/PrimariesKernel.h"

#include "engine/kernels/KernelMath.h"
#include "image/Srgb.h"

namespace LumetraHost {

template <Isa isa>
void PrimariesKernel<isa>::Run(const Tile& tile, const PrimariesNumbers& numbers)
{
    float* __restrict red = tile.red;
    float* __restrict green = tile.green;
    float* __restrict blue = tile.blue;
    const PrimariesNumbers n = numbers;
    const float* const m = n.matrix;
    const int count = tile.count;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        const float r = red[i];
        const float g = green[i];
        const float b = blue[i];
        const float luma =
            Clamp(static_cast<float>(LumaRed) * r + static_cast<float>(LumaGreen) * g +
                      static_cast<float>(LumaBlue) * b,
                  0.0f, 1.0f);
        const float dark = 1.0f - luma * luma * (3.0f - 2.0f * luma);
        const float shadow = 4.0f * luma * (1.0f - luma) * dark * dark;
        red[i] = m[0] * r + m[1] * g + m[2] * b + shadow * n.tint[0];
        green[i] = m[3] * r + m[4] * g + m[5] * b + shadow * n.tint[1];
        blue[i] = m[6] * r + m[7] * g + m[8] * b + shadow * n.tint[2];
    }
}

template struct PrimariesKernel<KernelIsa>;

} // namespace LumetraHost
