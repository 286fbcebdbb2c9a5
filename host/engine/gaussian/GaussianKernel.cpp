// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/gaussian/GaussianKernel.h"

#include "engine/kernels/KernelMath.h"
#include "image/Srgb.h"

namespace LumetraHost {
namespace {

LUMETRA_KERNEL_INLINE void AddPair(const SymmetricSum& sum, int distance, float* __restrict target,
                                   int count)
{
    const float* __restrict a = sum.before[distance];
    const float* __restrict b = sum.after[distance];
    const float weight = sum.weights[distance + 1];
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i)
        target[i] += weight * (a[i] + b[i]);
}

/// Adds two distances at once, in the order in which AddPair() would add them.
LUMETRA_KERNEL_INLINE void AddTwoPairs(const SymmetricSum& sum, int distance,
                                       float* __restrict target, int count)
{
    const float* __restrict a = sum.before[distance];
    const float* __restrict b = sum.after[distance];
    const float* __restrict c = sum.before[distance + 1];
    const float* __restrict d = sum.after[distance + 1];
    const float weight = sum.weights[distance + 1];
    const float nextWeight = sum.weights[distance + 2];
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i)
        target[i] = target[i] + weight * (a[i] + b[i]) + nextWeight * (c[i] + d[i]);
}

} // namespace

template <Isa isa>
void LumaKernel<isa>::Run(const Tile& tile, float* luma)
{
    const float* __restrict red = tile.red;
    const float* __restrict green = tile.green;
    const float* __restrict blue = tile.blue;
    const int count = tile.count;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i)
        luma[i] = static_cast<float>(LumaRed) * red[i] + static_cast<float>(LumaGreen) * green[i] +
                  static_cast<float>(LumaBlue) * blue[i];
}

template <Isa isa>
void SymmetricSumKernel<isa>::Run(const SymmetricSum& sum, float* target, int count)
{
    const float* __restrict centre = sum.centre;
    float* __restrict out = target;
    const float weight = sum.weights[0];
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i)
        out[i] = weight * centre[i];
    int distance = 0;
    for (; distance + 1 < sum.radius; distance += 2)
        AddTwoPairs(sum, distance, target, count);
    if (distance < sum.radius)
        AddPair(sum, distance, target, count);
}

template <Isa isa>
void AccumulateKernel<isa>::Run(const float* source, float weight, float* target, int count)
{
    const float* __restrict in = source;
    float* __restrict out = target;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i)
        out[i] += weight * in[i];
}

template <Isa isa>
void EnlargeKernel<isa>::Run(const float* source, const int* low, const int* high,
                             const float* fractions, float* target, int count)
{
    float* __restrict out = target;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        const float first = source[low[i]];
        out[i] = first + fractions[i] * (source[high[i]] - first);
    }
}

template struct LumaKernel<KernelIsa>;
template struct SymmetricSumKernel<KernelIsa>;
template struct AccumulateKernel<KernelIsa>;
template struct EnlargeKernel<KernelIsa>;

} // namespace LumetraHost
