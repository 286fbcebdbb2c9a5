// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/colourmixer/ColourMixerKernel.h"

#include "engine/kernels/ColourLoops.h"

namespace LumetraHost {
namespace {

LUMETRA_KERNEL_INLINE KernelColour Mix(const KernelColour& c, const ColourMixerNumbers& n)
{
    const float most = Max(Max(c.red, c.green), c.blue);
    const float least = Min(Min(c.red, c.green), c.blue);
    const float chroma = most - least;
    const KernelHue hue = GetHue(c, most, chroma);
    float turn = n.hue.start, saturate = n.saturation.start, lighten = n.luminance.start;
    for (int i = 0; i < HueCircle::Hues; ++i) {
        const float part = GetPart(hue, i);
        turn += part * n.hue.rises[i];
        saturate += part * n.saturation.rises[i];
        lighten += part * n.luminance.rises[i];
    }
    const float saturation = GetSaturation(most, least);
    const float gain = 1.0f + Min(saturate, 0.0f) + Max(saturate, 0.0f) * (1.0f - saturation);
    const float newChroma = chroma * gain;
    const KernelColour pure = GetPure(hue.base + (hue.rest + turn));
    const float lumaAbove = GetLuma({c.red - least, c.green - least, c.blue - least});
    const float grey = least + (lumaAbove - newChroma * GetLuma(pure));
    const float light = Exp2(lighten * Step(Clamp(2.0f * saturation, 0.0f, 1.0f)));
    return {light * (grey + newChroma * pure.red), light * (grey + newChroma * pure.green),
            light * (grey + newChroma * pure.blue)};
}

} // namespace

template <Isa isa>
void ColourMixerKernel<isa>::Run(const Tile& tile, const ColourMixerNumbers& numbers)
{
    MapColours(tile,
               [n = numbers](const KernelColour& c) LUMETRA_KERNEL_LAMBDA { return Mix(c, n); });
}

template struct ColourMixerKernel<KernelIsa>;

} // namespace LumetraHost
