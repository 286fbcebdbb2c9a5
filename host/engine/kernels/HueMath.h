// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/HueCircle.h"
#include "engine/kernels/KernelMath.h"
#include "image/Srgb.h"

// Only for kernel sources, see KernelMath.h: hue, chroma and luma of encoded values. A colour is
// m + C * P(h) with its least channel m, its chroma C (the largest channel less the least) and the
// pure colour P of its hue h. Sources: A. R. Smith, "Color Gamut Transform Pairs", SIGGRAPH 1978;
// with luma, A. Hanbury, "A 3D-Polar Coordinate Colour Representation Well Adapted to Image
// Analysis", SCIA 2003.
namespace LumetraHost {

/// A colour's hue in sectors of 60 degrees: `base` + `rest`, with the rest in -1..1. They are kept
/// apart because the sum would round the rest away.
struct KernelHue
{
    float base;
    float rest;
};

struct KernelColour
{
    float red;
    float green;
    float blue;
};

/// `most` is the largest channel, `chroma` by how much it lies above the least one. The hue of
/// greys, which have none, is red.
LUMETRA_KERNEL_INLINE KernelHue GetHue(const KernelColour& c, float most, float chroma)
{
    const bool isRed = c.red == most;
    const bool isGreen = c.green == most;
    const float across = c.green - c.blue;
    const float difference = isRed ? across : isGreen ? c.blue - c.red : c.red - c.green;
    const float base = isRed ? (across < 0.0f ? 6.0f : 0.0f) : isGreen ? 2.0f : 4.0f;
    return {base, difference / Max(chroma, 1e-20f)};
}

/// Hermite's step, for 0 to 1.
LUMETRA_KERNEL_INLINE float Step(float t)
{
    return t * t * (3.0f - 2.0f * t);
}

/// How far the hue is on its way from one hue of the circle to the next one, 0 to 1.
LUMETRA_KERNEL_INLINE float GetPart(const KernelHue& hue, int i)
{
    const float width = HueCircle::Centres[i + 1] - HueCircle::Centres[i];
    const float distance = hue.rest + (hue.base - HueCircle::Centres[i]);
    return Step(Clamp(distance / width, 0.0f, 1.0f));
}

/// The pure colour of a hue in sectors, -1 to 7.
LUMETRA_KERNEL_INLINE KernelColour GetPure(float sectors)
{
    const float h = sectors < 0.0f ? sectors + 6.0f : sectors > 6.0f ? sectors - 6.0f : sectors;
    return {Clamp(GetSize(h - 3.0f) - 1.0f, 0.0f, 1.0f),
            Clamp(2.0f - GetSize(h - 2.0f), 0.0f, 1.0f),
            Clamp(2.0f - GetSize(h - 4.0f), 0.0f, 1.0f)};
}

/// The luma of Rec. 709.
LUMETRA_KERNEL_INLINE float GetLuma(const KernelColour& c)
{
    return static_cast<float>(LumaRed) * c.red + static_cast<float>(LumaGreen) * c.green +
           static_cast<float>(LumaBlue) * c.blue;
}

/// Chroma beside the size of the colour, 0 to 1. The constant keeps the noise of dark colours from
/// counting as saturation.
LUMETRA_KERNEL_INLINE float GetSaturation(float most, float least)
{
    const float size = Max(GetSize(most), GetSize(least)) + 0.1f;
    return Clamp((most - least) / size, 0.0f, 1.0f);
}

} // namespace LumetraHost
