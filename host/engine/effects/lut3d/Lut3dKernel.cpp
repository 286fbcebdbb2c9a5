// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/lut3d/Lut3dKernel.h"

#include "engine/kernels/KernelMath.h"

namespace LumetraHost {
namespace {

constexpr int BlockSize = 256;
constexpr int Stride = 4;

/// Colours on their way through the tables.
struct alignas(64) Block
{
    float planes[3][BlockSize];
};

/// Where a colour lies in a cube: the four corners of its tetrahedron, as indexes of floats, and
/// what they weigh.
struct alignas(64) Corners
{
    std::int32_t index[4][BlockSize];
    float weight[4][BlockSize];
};

LUMETRA_KERNEL_INLINE float GetPlace(float value, float scale, float offset, float last)
{
    return Clamp(value * scale + offset, 0.0f, last);
}

LUMETRA_KERNEL_INLINE void RunCurve(const Lut3dGrid& grid, int channel, float* __restrict plane,
                                    int count)
{
    const float* const values = grid.values + channel;
    const float scale = grid.scale[channel], offset = grid.offset[channel];
    const float last = static_cast<float>(grid.size - 1);
    const std::int32_t lastCell = grid.size - 2;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        const float place = GetPlace(plane[i], scale, offset, last);
        const std::int32_t cell = Smaller(static_cast<std::int32_t>(place), lastCell);
        const float part = place - static_cast<float>(cell);
        const float low = values[Stride * cell];
        const float high = values[Stride * cell + Stride];
        plane[i] = low + part * (high - low);
    }
}

// The tetrahedron is that of the order of the three parts of a cell: one walks from the cell's
// first corner along the axis of the largest part, then of the middle, then of the smallest.
LUMETRA_KERNEL_INLINE void FindCorners(const Lut3dGrid& grid, const Block& block, int count,
                                       Corners& corners)
{
    const Lut3dGrid g = grid;
    const float last = static_cast<float>(g.size - 1);
    const std::int32_t lastCell = g.size - 2;
    const std::int32_t stepR = Stride, stepG = Stride * g.size, stepB = Stride * g.size * g.size;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        const float placeR = GetPlace(block.planes[0][i], g.scale[0], g.offset[0], last);
        const float placeG = GetPlace(block.planes[1][i], g.scale[1], g.offset[1], last);
        const float placeB = GetPlace(block.planes[2][i], g.scale[2], g.offset[2], last);
        const std::int32_t cellR = Smaller(static_cast<std::int32_t>(placeR), lastCell);
        const std::int32_t cellG = Smaller(static_cast<std::int32_t>(placeG), lastCell);
        const std::int32_t cellB = Smaller(static_cast<std::int32_t>(placeB), lastCell);
        const float r = placeR - static_cast<float>(cellR);
        const float gr = placeG - static_cast<float>(cellG);
        const float b = placeB - static_cast<float>(cellB);
        const float most = Max(Max(r, gr), b);
        const float least = Min(Min(r, gr), b);
        const float middle = Max(Min(r, gr), Min(Max(r, gr), b));
        // Where parts are equal, either axis may come first; the last one must be another.
        const std::int32_t most1 = r >= b ? stepR : stepB;
        const std::int32_t most2 = gr >= b ? stepG : stepB;
        const std::int32_t firstStep = r >= gr ? most1 : most2;
        const std::int32_t least1 = r < b ? stepR : stepB;
        const std::int32_t least2 = gr < b ? stepG : stepB;
        const std::int32_t lastStep = r < gr ? least1 : least2;
        const std::int32_t start = cellR * stepR + cellG * stepG + cellB * stepB;
        const std::int32_t end = start + stepR + stepG + stepB;
        corners.index[0][i] = start;
        corners.index[1][i] = start + firstStep;
        corners.index[2][i] = end - lastStep;
        corners.index[3][i] = end;
        corners.weight[0][i] = 1.0f - most;
        corners.weight[1][i] = most - middle;
        corners.weight[2][i] = middle - least;
        corners.weight[3][i] = least;
    }
}

// All channels of a corner lie together, so this loop goes by pixels, each a vector of four.
LUMETRA_KERNEL_INLINE void AddCorners(const float* __restrict values, const Corners& corners,
                                      int count, float* __restrict colours)
{
    for (int i = 0; i < count; ++i) {
        const float* const a = values + corners.index[0][i];
        const float* const b = values + corners.index[1][i];
        const float* const c = values + corners.index[2][i];
        const float* const d = values + corners.index[3][i];
        const float wa = corners.weight[0][i], wb = corners.weight[1][i];
        const float wc = corners.weight[2][i], wd = corners.weight[3][i];
        for (int lane = 0; lane < Stride; ++lane)
            colours[Stride * i + lane] = wa * a[lane] + wb * b[lane] + wc * c[lane] + wd * d[lane];
    }
}

LUMETRA_KERNEL_INLINE void RunCube(const Lut3dGrid& grid, Block& block, int count)
{
    Corners corners;
    alignas(64) float colours[Stride * BlockSize];
    FindCorners(grid, block, count, corners);
    AddCorners(grid.values, corners, count, colours);
    for (int i = 0; i < count; ++i) {
        block.planes[0][i] = colours[Stride * i];
        block.planes[1][i] = colours[Stride * i + 1];
        block.planes[2][i] = colours[Stride * i + 2];
    }
}

LUMETRA_KERNEL_INLINE void Mix(const float* __restrict table, float* __restrict plane, int count,
                               float strength)
{
    for (int i = 0; i < count; ++i)
        plane[i] += strength * (table[i] - plane[i]);
}

LUMETRA_KERNEL_INLINE void RunBlock(float* const* planes, int count, const Lut3dNumbers& n)
{
    Block block;
    for (int c = 0; c < 3; ++c)
        std::memcpy(block.planes[c], planes[c], sizeof(float) * static_cast<unsigned>(count));
    if (n.curve.values)
        for (int c = 0; c < 3; ++c)
            RunCurve(n.curve, c, block.planes[c], count);
    if (n.cube.values)
        RunCube(n.cube, block, count);
    for (int c = 0; c < 3; ++c)
        Mix(block.planes[c], planes[c], count, n.strength);
}

} // namespace

template <Isa isa>
void Lut3dKernel<isa>::Run(const Tile& tile, const Lut3dNumbers& numbers)
{
    for (int begin = 0; begin < tile.count; begin += BlockSize) {
        const int count = tile.count - begin < BlockSize ? tile.count - begin : BlockSize;
        float* const planes[3] = {tile.red + begin, tile.green + begin, tile.blue + begin};
        RunBlock(planes, count, numbers);
    }
}

template struct Lut3dKernel<KernelIsa>;

} // namespace LumetraHost
