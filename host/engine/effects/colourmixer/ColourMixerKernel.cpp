// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/colourmixer/ColourMixerKernel.h"

#include "engine/base/Srgb.h"
#include "engine/kernels/KernelMath.h"

namespace LumetraHost {
namespace {

// No chroma of a pixel is as small but that of greys, which have no hue.
constexpr float LeastChroma = 1e-20f;
// Saturation of colours that are darker than this is not told apart from noise.
constexpr float Darkest = 0.1f;

/// A colour's hue in sectors of 60 degrees: `base` + `rest`, with the rest in -1..1. They are kept
/// apart because the sum would round the rest away.
struct Hue
{
    float base;
    float rest;
};

struct Colour
{
    float red;
    float green;
    float blue;
};

LUMETRA_KERNEL_INLINE Hue GetHue(const Colour& c, float most, float chroma)
{
    const bool isRed = c.red == most;
    const bool isGreen = c.green == most;
    const float across = c.green - c.blue;
    const float difference = isRed ? across : isGreen ? c.blue - c.red : c.red - c.green;
    const float base = isRed ? (across < 0.0f ? 6.0f : 0.0f) : isGreen ? 2.0f : 4.0f;
    return {base, difference / Max(chroma, LeastChroma)};
}

LUMETRA_KERNEL_INLINE float Step(float t)
{
    return t * t * (3.0f - 2.0f * t);
}

/// How far the hue is on its way from one hue of the circle to the next one, 0 to 1.
LUMETRA_KERNEL_INLINE float GetPart(const Hue& hue, int i)
{
    const float width = HueCircle::Centres[i + 1] - HueCircle::Centres[i];
    const float distance = hue.rest + (hue.base - HueCircle::Centres[i]);
    return Step(Clamp(distance / width, 0.0f, 1.0f));
}

/// The pure colour of a hue in sectors, -1 to 7.
LUMETRA_KERNEL_INLINE Colour GetPure(float sectors)
{
    const float h = sectors < 0.0f ? sectors + 6.0f : sectors > 6.0f ? sectors - 6.0f : sectors;
    return {Clamp(GetSize(h - 3.0f) - 1.0f, 0.0f, 1.0f),
            Clamp(2.0f - GetSize(h - 2.0f), 0.0f, 1.0f),
            Clamp(2.0f - GetSize(h - 4.0f), 0.0f, 1.0f)};
}

LUMETRA_KERNEL_INLINE float GetLuma(const Colour& c)
{
    return static_cast<float>(LumaRed) * c.red + static_cast<float>(LumaGreen) * c.green +
           static_cast<float>(LumaBlue) * c.blue;
}

LUMETRA_KERNEL_INLINE Colour Mix(const Colour& c, const ColourMixerNumbers& n)
{
    const float most = Max(Max(c.red, c.green), c.blue);
    const float least = Min(Min(c.red, c.green), c.blue);
    const float chroma = most - least;
    const Hue hue = GetHue(c, most, chroma);
    float turn = n.hue.start, saturate = n.saturation.start, lighten = n.luminance.start;
    for (int i = 0; i < HueCircle::Hues; ++i) {
        const float part = GetPart(hue, i);
        turn += part * n.hue.rises[i];
        saturate += part * n.saturation.rises[i];
        lighten += part * n.luminance.rises[i];
    }
    const float size = Max(GetSize(most), GetSize(least)) + Darkest;
    const float saturation = Clamp(chroma / size, 0.0f, 1.0f);
    const float gain = 1.0f + Min(saturate, 0.0f) + Max(saturate, 0.0f) * (1.0f - saturation);
    const float newChroma = chroma * gain;
    const Colour pure = GetPure(hue.base + (hue.rest + turn));
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
    float* __restrict red = tile.red;
    float* __restrict green = tile.green;
    float* __restrict blue = tile.blue;
    const ColourMixerNumbers n = numbers;
    const int count = tile.count;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        const Colour mixed = Mix({red[i], green[i], blue[i]}, n);
        red[i] = mixed.red;
        green[i] = mixed.green;
        blue[i] = mixed.blue;
    }
}

template struct ColourMixerKernel<KernelIsa>;

} // namespace LumetraHost
