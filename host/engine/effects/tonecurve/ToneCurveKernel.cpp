// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/tonecurve/ToneCurveKernel.h"

#include "engine/kernels/KernelMath.h"

namespace LumetraHost {
namespace {

// One loop per piece needs a sum that waits in the first-level cache.
constexpr int BlockSize = 512;

LUMETRA_KERNEL_INLINE void AddPiece(const float* __restrict x, float* __restrict sum, int count,
                                    const ToneCurveNumbers& n, int piece)
{
    const float begin = n.begin[piece], width = n.width[piece];
    const float linear = n.linear[piece], square = n.square[piece], cube = n.cube[piece];
    for (int i = 0; i < count; ++i) {
        const float t = Clamp(x[i] - begin, 0.0f, width);
        sum[i] += t * (linear + t * (square + t * cube));
    }
}

LUMETRA_KERNEL_INLINE void RunBlock(float* __restrict x, int count, const ToneCurveNumbers& n)
{
    alignas(64) float sum[BlockSize];
    for (int i = 0; i < count; ++i)
        sum[i] =
            n.start + n.before * Min(x[i] - n.first, 0.0f) + n.after * Max(x[i] - n.last, 0.0f);
    for (int piece = 0; piece < n.pieces; ++piece)
        AddPiece(x, sum, count, n, piece);
    for (int i = 0; i < count; ++i)
        x[i] = sum[i];
}

LUMETRA_KERNEL_INLINE void RunPlane(float* plane, int count, const ToneCurveNumbers& n)
{
    if (n.pieces == 0)
        return;
    for (int i = 0; i < count; i += BlockSize)
        RunBlock(plane + i, count - i < BlockSize ? count - i : BlockSize, n);
}

} // namespace

template <Isa isa>
void ToneCurveKernel<isa>::Run(const Tile& tile, const ToneCurvesNumbers& numbers)
{
    float* const planes[3] = {tile.red, tile.green, tile.blue};
    for (int c = 0; c < 3; ++c) {
        RunPlane(planes[c], tile.count, numbers.master);
        RunPlane(planes[c], tile.count, numbers.channels[c]);
    }
}

template struct ToneCurveKernel<KernelIsa>;

} // namespace LumetraHost
