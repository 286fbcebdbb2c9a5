// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/run/Blend.h"

#include "engine/kernels/KernelSelection.h"
#include "engine/pixels/PixelKernel.h"

#include <algorithm>

namespace LumetraHost {
namespace {

constexpr int BandRows = 32;

} // namespace

int ClampBlendAmount(int blendAmount)
{
    return std::clamp(blendAmount, FullEffect, SourceOnly);
}

double GetSourceWeight(int blendAmount)
{
    return (ClampBlendAmount(blendAmount) - FullEffect) / double{SourceOnly - FullEffect};
}

void Blend(const Image& source, const Image& effect, int blendAmount, Image& target, Isa isa,
           int threads, ThreadPool& pool)
{
    const bool is16 = source.GetDepth() == Image::Depth::Bits16;
    const auto kernel = is16 ? SelectKernel<BlendKernel16>(isa) : SelectKernel<BlendKernel8>(isa);
    const int height = source.GetHeight();
    const int amount = ClampBlendAmount(blendAmount);
    pool.ForEach((height + BandRows - 1) / BandRows, threads, [&](int band) {
        const int end = std::min(height, (band + 1) * BandRows);
        for (int y = band * BandRows; y < end; ++y)
            kernel(source.Row(y), effect.Row(y), target.Row(y), source.GetWidth(), amount);
    });
}

} // namespace LumetraHost
