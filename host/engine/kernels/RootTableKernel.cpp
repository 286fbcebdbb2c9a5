// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/kernels/RootTableKernel.h"

#include "engine/kernels/KernelMath.h"
#include "image/RootGrid.h"

namespace LumetraHost {
namespace {

using Grid = RootGrid;

/// Above all that matters; its place is still an integer.
constexpr float Largest = 1e15f;

constexpr int BlockSize = 256;

LUMETRA_KERNEL_INLINE void FindPieces(const float* __restrict values, float* __restrict fractions,
                                      std::int32_t* __restrict pieces, int count)
{
    for (int i = 0; i < count; ++i) {
        const float size = ClampPositive(GetSize(values[i]), 0.0f, Largest);
        const float place =
            __builtin_sqrtf(__builtin_sqrtf(size)) * static_cast<float>(Grid::PiecesOfUnit);
        pieces[i] = Smaller(static_cast<std::int32_t>(place), Grid::Pieces - 1);
        fractions[i] = place - static_cast<float>(pieces[i]);
    }
}

LUMETRA_KERNEL_INLINE void RunPlane(float* plane, const float* table, int count)
{
    alignas(64) float fractions[BlockSize];
    alignas(64) std::int32_t pieces[BlockSize];
    for (int x = 0; x < count; x += BlockSize) {
        float* const values = plane + x;
        const int pixels = Smaller(BlockSize, count - x);
        FindPieces(values, fractions, pieces, pixels);
        LUMETRA_KERNEL_UNROLLED
        for (int i = 0; i < pixels; ++i) {
            const float* const node = table + pieces[i];
            values[i] = WithSignOf(node[0] + fractions[i] * (node[1] - node[0]), values[i]);
        }
    }
}

} // namespace

template <Isa isa>
void RootTableKernel<isa>::Run(const Tile& tile, const float* const* tables)
{
    RunPlane(tile.red, tables[0], tile.count);
    RunPlane(tile.green, tables[1], tile.count);
    RunPlane(tile.blue, tables[2], tile.count);
}

template struct RootTableKernel<KernelIsa>;

} // namespace LumetraHost
