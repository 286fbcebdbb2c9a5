// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/kernels/CubeLattice.h"
#include "engine/kernels/KernelMath.h"

#include <cstdint>

#if defined(__AVX512F__) && defined(__AVX512BW__)

/// Defined where DrawByGather() is there.
#define LUMETRA_KERNEL_GATHERS

#include <immintrin.h>

// Only for kernel sources, and only where there is AVX-512: 16 pixels at a time, whose corners are
// gathered. Takes two thirds of the time of loading each corner by itself (Xeon, 2023). Older sets
// gather no faster than they load.
namespace LumetraHost {
namespace {

/// Corners of 16 tetrahedra, as entries of the cube counted in values, and their weights of 255 in
/// pairs of 16 bits.
struct GatherPlan
{
    __m512i corners[4];
    __m512i weights12;
    __m512i weights34;
};

LUMETRA_KERNEL_INLINE __m512i Repeat(std::int32_t value)
{
    return _mm512_set1_epi32(value);
}

/// Two factors of 16 bits for _mm512_madd_epi16().
LUMETRA_KERNEL_INLINE __m512i RepeatPair(std::int32_t low, std::int32_t high)
{
    return Repeat((low & 0xFFFF) | high * 65536);
}

LUMETRA_KERNEL_INLINE __m512i Pair(__m512i low, __m512i high)
{
    return _mm512_or_si512(low, _mm512_slli_epi32(high, 16));
}

/// See FindCell().
template <int points>
LUMETRA_KERNEL_INLINE __m512i FindCells(__m512i values)
{
    constexpr std::int32_t cells = Lattice<points>::Cells;
    const __m512i scaled = _mm512_madd_epi16(values, Repeat(cells * 257));
    return _mm512_min_epi32(_mm512_srli_epi32(scaled, 16), Repeat(cells - 1));
}

/// See MakeKey().
template <int points>
LUMETRA_KERNEL_INLINE __m512i MakeKeys(__m512i values, __m512i cells, std::int32_t stride)
{
    const __m512i places =
        _mm512_madd_epi16(Pair(values, cells), RepeatPair(Lattice<points>::Cells, -255));
    return Pair(Repeat(stride), places);
}

/// See FindCorners().
template <int points>
LUMETRA_KERNEL_INLINE GatherPlan PlanGather(__m512i colours)
{
    using L = Lattice<points>;
    const __m512i byte = Repeat(0xFF);
    const __m512i red = _mm512_and_si512(colours, byte);
    const __m512i green = _mm512_and_si512(_mm512_srli_epi32(colours, 8), byte);
    const __m512i blue = _mm512_and_si512(_mm512_srli_epi32(colours, 16), byte);
    const __m512i redCells = FindCells<points>(red);
    const __m512i greenCells = FindCells<points>(green);
    const __m512i blueCells = FindCells<points>(blue);

    const __m512i a = MakeKeys<points>(red, redCells, L::RedStride);
    const __m512i b = MakeKeys<points>(green, greenCells, L::GreenStride);
    const __m512i c = MakeKeys<points>(blue, blueCells, L::BlueStride);
    const __m512i smaller = _mm512_min_epi32(a, b);
    const __m512i larger = _mm512_max_epi32(a, b);
    const __m512i largest = _mm512_max_epi32(larger, c);
    const __m512i smallest = _mm512_min_epi32(smaller, c);
    const __m512i middle = _mm512_max_epi32(smaller, _mm512_min_epi32(larger, c));

    const __m512i redGreen =
        _mm512_madd_epi16(Pair(redCells, greenCells), RepeatPair(L::RedStride, L::GreenStride));
    const __m512i first =
        _mm512_add_epi32(redGreen, _mm512_madd_epi16(blueCells, Repeat(L::BlueStride)));
    const __m512i word = Repeat(0xFFFF);
    const __m512i second = _mm512_add_epi32(first, _mm512_and_si512(largest, word));
    const __m512i third = _mm512_add_epi32(second, _mm512_and_si512(middle, word));
    const __m512i fourth =
        _mm512_add_epi32(first, Repeat(L::RedStride + L::GreenStride + L::BlueStride));

    const __m512i f1 = _mm512_srli_epi32(largest, 16);
    const __m512i f2 = _mm512_srli_epi32(middle, 16);
    const __m512i f3 = _mm512_srli_epi32(smallest, 16);
    return {{first, second, third, fourth},
            Pair(_mm512_sub_epi32(byte, f1), _mm512_sub_epi32(f1, f2)),
            Pair(_mm512_sub_epi32(f2, f3), f3)};
}

/// The lower or the upper half of 16 numbers.
template <int half>
LUMETRA_KERNEL_INLINE __m256i GetHalf(__m512i numbers)
{
    return _mm512_extracti64x4_epi64(numbers, half);
}

/// Adds two corners of every second pixel of eight, the even or the odd ones, with their weights.
template <int odd>
LUMETRA_KERNEL_INLINE __m512i AddPair(__m512i first, __m512i second, __m512i weights)
{
    const __m512i pairs =
        odd ? _mm512_unpackhi_epi16(first, second) : _mm512_unpacklo_epi16(first, second);
    const __m512i pixels = _mm512_add_epi32(
        _mm512_setr_epi32(0, 0, 0, 0, 2, 2, 2, 2, 4, 4, 4, 4, 6, 6, 6, 6), Repeat(odd));
    return _mm512_madd_epi16(pairs, _mm512_permutexvar_epi32(pixels, weights));
}

/// Eight entries of the cube.
LUMETRA_KERNEL_INLINE __m512i GatherCorners(const std::int16_t* cube, __m256i offsets)
{
    return _mm512_i32gather_epi64(offsets, cube, sizeof(std::int16_t));
}

/// Interpolates eight pixels of the plan, four words each, rounded, and tells the marked ones.
template <int half>
LUMETRA_KERNEL_INLINE __m512i DrawHalf(const std::int16_t* cube, const GatherPlan& plan,
                                       std::uint32_t& marked)
{
    const __m512i first = GatherCorners(cube, GetHalf<half>(plan.corners[0]));
    const __m512i second = GatherCorners(cube, GetHalf<half>(plan.corners[1]));
    const __m512i third = GatherCorners(cube, GetHalf<half>(plan.corners[2]));
    const __m512i fourth = GatherCorners(cube, GetHalf<half>(plan.corners[3]));
    marked |= static_cast<std::uint32_t>(
                  _mm512_test_epi64_mask(first, _mm512_set1_epi64(std::int64_t{1} << 48)))
              << 8 * half;

    const __m512i weights12 = _mm512_castsi256_si512(GetHalf<half>(plan.weights12));
    const __m512i weights34 = _mm512_castsi256_si512(GetHalf<half>(plan.weights34));
    const __m512i even = _mm512_add_epi32(AddPair<0>(first, second, weights12),
                                          AddPair<0>(third, fourth, weights34));
    const __m512i odd = _mm512_add_epi32(AddPair<1>(first, second, weights12),
                                         AddPair<1>(third, fourth, weights34));
    return _mm512_packs_epi32(_mm512_srai_epi32(_mm512_add_epi32(even, Repeat(Half)), Shift),
                              _mm512_srai_epi32(_mm512_add_epi32(odd, Repeat(Half)), Shift));
}

/// Draws 16 pixels; alpha stays.
template <int points>
LUMETRA_KERNEL_INLINE __m512i DrawGroup(const std::int16_t* cube, __m512i colours,
                                        std::uint32_t& marked)
{
    const GatherPlan plan = PlanGather<points>(colours);
    const __m512i low = DrawHalf<0>(cube, plan, marked);
    const __m512i high = DrawHalf<1>(cube, plan, marked);
    // Packing works on pieces of 128 bits: two pixels of the one half, then two of the other.
    const __m512i bytes = _mm512_permutexvar_epi64(_mm512_setr_epi64(0, 2, 4, 6, 1, 3, 5, 7),
                                                   _mm512_packus_epi16(low, high));
    return _mm512_mask_blend_epi8(0x8888888888888888u, bytes, colours);
}

/// Appends the marked pixels of a group that begins at `begin`.
LUMETRA_KERNEL_INLINE void AppendMarked(MarkedPixels& rest, int begin, __m512i colours,
                                        __mmask16 marked)
{
    const __m512i places = _mm512_add_epi32(
        Repeat(begin), _mm512_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15));
    const int count = __builtin_popcount(marked);
    const auto first = static_cast<__mmask16>((1u << count) - 1);
    _mm512_mask_storeu_epi32(rest.positions + rest.count, first,
                             _mm512_maskz_compress_epi32(marked, places));
    _mm512_mask_storeu_epi32(rest.colours + rest.count, first,
                             _mm512_maskz_compress_epi32(marked, colours));
    rest.count += count;
}

template <int points>
LUMETRA_KERNEL_INLINE void DrawByGather(const std::int16_t* cube, const std::uint8_t* source,
                                        std::uint8_t* target, int count, MarkedPixels& rest)
{
    rest.count = 0;
    for (int i = 0; i < count; i += 16) {
        const int left = count - i;
        const auto mask = static_cast<__mmask16>(left < 16 ? (1u << left) - 1 : 0xFFFFu);
        std::uint32_t marked = 0;
        const __m512i colours = _mm512_maskz_loadu_epi32(mask, source + 4 * i);
        const __m512i drawn = DrawGroup<points>(cube, colours, marked);
        _mm512_mask_storeu_epi32(target + 4 * i, mask, drawn);
        marked &= mask;
        if (marked != 0)
            AppendMarked(rest, i, colours, static_cast<__mmask16>(marked));
    }
}

} // namespace
} // namespace LumetraHost

#endif
