// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/run/Blend.h"

#include "engine/kernels/KernelSelection.h"
#include "engine/pixels/PixelKernel.h"
#include "threads/RowBands.h"

#include <algorithm>

namespace LumetraHost {

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
    const int amount = ClampBlendAmount(blendAmount);
    ForEachBand(pool, source.GetHeight(), threads, nullptr, [&](int first, int end) {
        for (int y = first; y < end; ++y)
            kernel(source.Row(y), effect.Row(y), target.Row(y), source.GetWidth(), amount);
    });
}

} // namespace LumetraHost
