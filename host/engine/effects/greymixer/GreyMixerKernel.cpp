// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/greymixer/GreyMixerKernel.h"

#include "engine/kernels/ColourLoops.h"

namespace LumetraHost {
namespace {

LUMETRA_KERNEL_INLINE float GetGrey(const KernelColour& c, const GreyMixerNumbers& n)
{
    const float most = Max(Max(c.red, c.green), c.blue);
    const float least = Min(Min(c.red, c.green), c.blue);
    const KernelHue hue = GetHue(c, most, most - least);
    float lighten = n.luminance.start;
    for (int i = 0; i < HueCircle::Hues; ++i)
        lighten += GetPart(hue, i) * n.luminance.rises[i];
    // Added to the least channel, so that the luma of greys is not rounded.
    const float luma = least + GetLuma({c.red - least, c.green - least, c.blue - least});
    return luma * Exp2(lighten * Step(Clamp(2.0f * GetSaturation(most, least), 0.0f, 1.0f)));
}

} // namespace

template <Isa isa>
void GreyMixerKernel<isa>::Run(const Tile& tile, const GreyMixerNumbers& numbers)
{
    MapColours(tile, [n = numbers](const KernelColour& c) LUMETRA_KERNEL_LAMBDA {
        const float grey = GetGrey(c, n);
        return KernelColour{c.red + n.amount * (grey - c.red),
                            c.green + n.amount * (grey - c.green),
                            c.blue + n.amount * (grey - c.blue)};
    });
}

template struct GreyMixerKernel<KernelIsa>;

} // namespace LumetraHost
