// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/curvetable/CurveTableKernel.h"

#include "engine/kernels/KernelMath.h"

namespace LumetraHost {
namespace {

using Grid = CurveGrid;

/// Beyond three stops above white, and colours two stops above, nobody looks for a thousandth.
constexpr float LargestPlace = 8.0f;
constexpr float LargestValue = 4.0f;

LUMETRA_KERNEL_INLINE void RunPlane(float* __restrict plane, const float* __restrict table,
                                    int count)
{
    constexpr std::int32_t first = (Grid::LowBits - 1) >> Grid::Shift;
    // The last float of the last piece.
    const float largest = FloatFromBits(Grid::HighBits - 1);
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        const float value = Clamp(plane[i], -largest, largest);
        const std::int32_t bits = BitsFromFloat(value);
        const std::int32_t size = Larger(bits & 0x7FFFFFFF, Grid::LowBits - 1);
        const std::int32_t piece = (size >> Grid::Shift) - first + (bits >> 31 & Grid::Pieces);
        plane[i] = table[2 * piece] + table[2 * piece + 1] * value;
    }
}

/// A change of linear light as one of encoded values is at most 12.92 times as large, and smaller
/// in brighter colours: 1 / 2.27 of it in white.
LUMETRA_KERNEL_INLINE float GetSteps(float off, float value, bool isLinear)
{
    const float size = GetSize(value);
    const float root = __builtin_sqrtf(size);
    const float bright = 2.27f * Min(root * __builtin_sqrtf(root), 1.0f);
    const float scale = isLinear ? Max(bright, 1.0f / 12.92f) : 1.0f;
    return 255.0f * GetSize(off) / (scale * Max(size, 1.0f));
}

} // namespace

template <Isa isa>
void CurveTableKernel<isa>::Run(const Tile& tile, const float* const* tables)
{
    RunPlane(tile.red, tables[0], tile.count);
    RunPlane(tile.green, tables[1], tile.count);
    RunPlane(tile.blue, tables[2], tile.count);
}

template <Isa isa>
float CurveFitKernel<isa>::Run(const float* places, const float* values, bool isLinear,
                               float* table)
{
    const float* __restrict x = places;
    const float* __restrict y = values;
    float* __restrict piece = table;
    std::int32_t worst = 0;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < Grid::Pieces; ++i) {
        const float slope = (y[2 * i + 2] - y[2 * i]) / (x[2 * i + 2] - x[2 * i]);
        const float half = 0.5f * (y[2 * i + 1] - 0.5f * (y[2 * i] + y[2 * i + 2]));
        // The piece at zero keeps zero where it is.
        const float off = i == 0 ? 0.0f : half;
        piece[2 * i] = y[2 * i] - slope * x[2 * i] + off;
        piece[2 * i + 1] = slope;
        const bool matters =
            GetSize(x[2 * i]) < LargestPlace && !(GetSize(y[2 * i + 1]) > LargestValue);
        const float steps = matters ? GetSteps(off, y[2 * i + 1], isLinear) : 0.0f;
        worst = Larger(worst, BitsFromFloat(steps));
    }
    return FloatFromBits(worst);
}

template struct CurveTableKernel<KernelIsa>;
template struct CurveFitKernel<KernelIsa>;

} // namespace LumetraHost
