// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/colourgrading/ColourGradingKernel.h"

#include "engine/kernels/KernelMath.h"
#include "image/Srgb.h"

namespace LumetraHost {
namespace {

// Below this luma the curve is straight enough for its slope to be one number.
constexpr float Darkest = 1.0f / 4096;

LUMETRA_KERNEL_INLINE float Step(float t)
{
    return t * t * (3.0f - 2.0f * t);
}

LUMETRA_KERNEL_INLINE float AddPiece(float sum, float luma, const ColourGradingNumbers& n, int i)
{
    const float t = Clamp(luma - n.start[i], 0.0f, n.width[i]);
    return sum + t * (n.linear[i] + t * (n.square[i] + t * n.cube[i]));
}

/// The factor of all channels.
LUMETRA_KERNEL_INLINE float GetGain(float luma, const ColourGradingNumbers& n)
{
    const float place = Max(luma, Darkest);
    float sum = AddPiece(0.0f, place, n, 0);
    sum = AddPiece(sum, place, n, 1);
    sum = AddPiece(sum, place, n, 2);
    sum = AddPiece(sum, place, n, 3);
    return sum / place;
}

} // namespace

template <Isa isa>
void ColourGradingKernel<isa>::Run(const Tile& tile, const ColourGradingNumbers& numbers)
{
    float* __restrict red = tile.red;
    float* __restrict green = tile.green;
    float* __restrict blue = tile.blue;
    const ColourGradingNumbers n = numbers;
    const int count = tile.count;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        const float luma =
            Clamp(static_cast<float>(LumaRed) * red[i] + static_cast<float>(LumaGreen) * green[i] +
                      static_cast<float>(LumaBlue) * blue[i],
                  0.0f, 1.0f);
        const float gain = GetGain(luma, n);
        const float strength = 4.0f * luma * (1.0f - luma);
        const float highlight =
            Step(Clamp((luma - n.highlightBegin) * n.highlightScale, 0.0f, 1.0f));
        const float shadow = 1.0f - Step(Clamp((luma - n.shadowBegin) * n.shadowScale, 0.0f, 1.0f));
        const float midtone = 1.0f - shadow - highlight;
        red[i] = gain * red[i] + strength * (shadow * n.shadow[0] + midtone * n.midtone[0] +
                                             highlight * n.highlight[0]);
        green[i] = gain * green[i] + strength * (shadow * n.shadow[1] + midtone * n.midtone[1] +
                                                 highlight * n.highlight[1]);
        blue[i] = gain * blue[i] + strength * (shadow * n.shadow[2] + midtone * n.midtone[2] +
                                               highlight * n.highlight[2]);
    }
}

template struct ColourGradingKernel<KernelIsa>;

} // namespace LumetraHost
