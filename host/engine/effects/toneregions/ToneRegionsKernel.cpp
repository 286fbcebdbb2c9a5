// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/toneregions/ToneRegionsKernel.h"

#include "engine/kernels/KernelMath.h"
#include "image/Srgb.h"

namespace LumetraHost {
namespace {

// The gain no longer changes beyond these luminances, which lie far outside of the regions.
constexpr float Darkest = 1e-9f;
constexpr float Brightest = 1e9f;

LUMETRA_KERNEL_INLINE float AddPiece(float gain, float stops, const ToneRegionsNumbers& n, int i)
{
    const float t = Clamp(stops - n.start[i], 0.0f, n.width[i]);
    return gain + t * (n.linear[i] + t * (n.square[i] + t * n.cube[i]));
}

} // namespace

template <Isa isa>
void ToneRegionsKernel<isa>::Run(const Tile& tile, const ToneRegionsNumbers& numbers)
{
    float* __restrict red = tile.red;
    float* __restrict green = tile.green;
    float* __restrict blue = tile.blue;
    const ToneRegionsNumbers n = numbers;
    const int count = tile.count;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        const float luma = static_cast<float>(LumaRed) * red[i] +
                           static_cast<float>(LumaGreen) * green[i] +
                           static_cast<float>(LumaBlue) * blue[i];
        const float stops = Log2(Clamp(luma, Darkest, Brightest));
        float gain = n.base;
        gain = AddPiece(gain, stops, n, 0);
        gain = AddPiece(gain, stops, n, 1);
        gain = AddPiece(gain, stops, n, 2);
        gain = AddPiece(gain, stops, n, 3);
        const float factor = Exp2(gain);
        red[i] *= factor;
        green[i] *= factor;
        blue[i] *= factor;
    }
}

template struct ToneRegionsKernel<KernelIsa>;

} // namespace LumetraHost
