// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/kernels/CurveTableKernel.h"

#include "engine/kernels/KernelMath.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace LumetraHost {
namespace {

using Grid = CurveGrid;

/// Nobody sees a thousandth more than three stops above white.
constexpr float LargestPlace = 8.0f;
constexpr float LargestValue = 4.0f;

constexpr int BlockSize = 256;

/// Limits the sizes of the values to the last float of the last piece, and finds the index of each
/// one's piece.
LUMETRA_KERNEL_INLINE void FindPieces(float* __restrict values, std::int32_t* __restrict indexes,
                                      int count)
{
    constexpr std::int32_t first = (Grid::LowBits - 1) >> Grid::Shift;
    for (int i = 0; i < count; ++i) {
        const std::int32_t bits = BitsFromFloat(values[i]);
        const std::int32_t size = Smaller(bits & SizeMask, Grid::HighBits - 1);
        values[i] = FloatFromBits(size | (bits & ~SizeMask));
        indexes[i] =
            (Larger(size, Grid::LowBits - 1) >> Grid::Shift) - first + (bits >> 31 & Grid::Pieces);
    }
}

#ifdef __SSE2__

// Loads both numbers of two pieces with one instruction each: compilers would gather them one by
// one.
LUMETRA_KERNEL_INLINE __m128 LoadTwoPieces(const float* table, const std::int32_t* indexes)
{
    const float* const first = table + 2 * indexes[0];
    const float* const second = table + 2 * indexes[1];
    const __m128i low = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(first));
    return _mm_loadh_pi(_mm_castsi128_ps(low), reinterpret_cast<const __m64*>(second));
}

LUMETRA_KERNEL_INLINE int DrawFours(float* values, const std::int32_t* indexes, const float* table,
                                    int count)
{
    int i = 0;
    LUMETRA_KERNEL_UNROLLED
    for (; i + 4 <= count; i += 4) {
        const __m128 low = LoadTwoPieces(table, indexes + i);
        const __m128 high = LoadTwoPieces(table, indexes + i + 2);
        const __m128 added = _mm_shuffle_ps(low, high, _MM_SHUFFLE(2, 0, 2, 0));
        const __m128 slope = _mm_shuffle_ps(low, high, _MM_SHUFFLE(3, 1, 3, 1));
        const __m128 value = _mm_loadu_ps(values + i);
        _mm_storeu_ps(values + i, _mm_add_ps(added, _mm_mul_ps(slope, value)));
    }
    return i;
}

#else

LUMETRA_KERNEL_INLINE int DrawFours(float*, const std::int32_t*, const float*, int)
{
    return 0;
}

#endif

LUMETRA_KERNEL_INLINE void RunPlane(float* plane, const float* table, int count)
{
    alignas(64) std::int32_t indexes[BlockSize];
    for (int x = 0; x < count; x += BlockSize) {
        float* const values = plane + x;
        const int pixels = Smaller(BlockSize, count - x);
        FindPieces(values, indexes, pixels);
        for (int i = DrawFours(values, indexes, table, pixels); i < pixels; ++i)
            values[i] = table[2 * indexes[i]] + table[2 * indexes[i] + 1] * values[i];
    }
}

/// Turns an error of linear light into steps of encoded values. The slope of the encoding is 12.92
/// at black, less in brighter colours and 1 / 2.27 in white.
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
