// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/vibrance/VibranceKernel.h"

#include "engine/kernels/KernelMath.h"
#include "image/Srgb.h"

namespace LumetraHost {
namespace {

// Only black is as dark, and black has no saturation.
constexpr float Darkest = 1e-12f;

} // namespace

template <Isa isa>
void VibranceKernel<isa>::Run(const Tile& tile, const float& amount)
{
    float* __restrict red = tile.red;
    float* __restrict green = tile.green;
    float* __restrict blue = tile.blue;
    const float strength = amount;
    const int count = tile.count;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        const float r = red[i];
        const float g = green[i];
        const float b = blue[i];
        const float luma = static_cast<float>(LumaRed) * r + static_cast<float>(LumaGreen) * g +
                           static_cast<float>(LumaBlue) * b;
        const float most = Max(Max(r, g), b);
        const float least = Min(Min(r, g), b);
        const float saturation = Clamp((most - least) / Max(most, Darkest), 0.0f, 1.0f);
        const float gain = 1.0f + strength * (1.0f - saturation);
        red[i] = luma + gain * (r - luma);
        green[i] = luma + gain * (g - luma);
        blue[i] = luma + gain * (b - luma);
    }
}

template struct VibranceKernel<KernelIsa>;

} // namespace LumetraHost
