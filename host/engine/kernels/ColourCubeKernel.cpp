// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/kernels/ColourCubeKernel.h"

#include "engine/kernels/ColourCubeGather.h"
#include "engine/kernels/CubeLattice.h"
#include "engine/kernels/KernelMath.h"
#include "engine/kernels/PackedPixel.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace LumetraHost {
namespace {

constexpr int ChunkPixels = ColourCube::MostPixels;
constexpr float Unit = 1.0f / (255.0f * ColourCube::One);

/// Where the four corners of a pixel's tetrahedron lie, and their weights of 255 in pairs of 16
/// bits.
struct alignas(64) Corners
{
    std::int32_t first[ChunkPixels];
    std::int32_t second[ChunkPixels];
    std::int32_t third[ChunkPixels];
    std::int32_t fourth[ChunkPixels];
    std::int32_t weights12[ChunkPixels];
    std::int32_t weights34[ChunkPixels];
};

/// The cell: value * cells / 255, limited so that white lies at the end of the last cell. Exact for
/// values of 0 to 255 and up to 64 cells.
LUMETRA_KERNEL_INLINE std::int32_t FindCell(std::int32_t value, std::int32_t cells)
{
    return Smaller((value * (cells * 257)) >> 16, cells - 1);
}

/// Packs the place within the cell, 0 to 255, above the axis' stride: sorting orders by the place.
template <int points>
LUMETRA_KERNEL_INLINE std::int32_t MakeKey(std::int32_t value, std::int32_t cell,
                                           std::int32_t stride)
{
    return (value * Lattice<points>::Cells - cell * 255) * 65536 + stride;
}

template <int points>
LUMETRA_KERNEL_INLINE void FindCorners(Corners& corners, const PackedPixel8* source, int count)
{
    using L = Lattice<points>;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        const std::uint32_t pixel = source[i];
        const auto red = static_cast<std::int32_t>(pixel >> GetChannelShift(0, 8) & 0xFF);
        const auto green = static_cast<std::int32_t>(pixel >> GetChannelShift(1, 8) & 0xFF);
        const auto blue = static_cast<std::int32_t>(pixel >> GetChannelShift(2, 8) & 0xFF);
        const std::int32_t redCell = FindCell(red, L::Cells);
        const std::int32_t greenCell = FindCell(green, L::Cells);
        const std::int32_t blueCell = FindCell(blue, L::Cells);
        const std::int32_t a = MakeKey<points>(red, redCell, L::RedStride);
        const std::int32_t b = MakeKey<points>(green, greenCell, L::GreenStride);
        const std::int32_t c = MakeKey<points>(blue, blueCell, L::BlueStride);
        const std::int32_t largest = Larger(Larger(a, b), c);
        const std::int32_t smallest = Smaller(Smaller(a, b), c);
        const std::int32_t middle = Larger(Smaller(a, b), Smaller(Larger(a, b), c));
        const std::int32_t first =
            redCell * L::RedStride + greenCell * L::GreenStride + blueCell * L::BlueStride;
        const std::int32_t f1 = largest >> 16;
        const std::int32_t f2 = middle >> 16;
        const std::int32_t f3 = smallest >> 16;
        corners.first[i] = first;
        corners.second[i] = first + (largest & 0xFFFF);
        corners.third[i] = first + (largest & 0xFFFF) + (middle & 0xFFFF);
        corners.fourth[i] = first + L::RedStride + L::GreenStride + L::BlueStride;
        corners.weights12[i] = (255 - f1) | (f1 - f2) << 16;
        corners.weights34[i] = (f2 - f3) | f3 << 16;
    }
}

#ifdef __SSE2__

LUMETRA_KERNEL_INLINE __m128i LoadCorner(const std::int16_t* cube, std::int32_t offset)
{
    return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(cube + offset));
}

/// The sums of the four corners, red, green, blue and nothing, of 255 * ColourCube::One for white.
LUMETRA_KERNEL_INLINE __m128i Sum(const std::int16_t* cube, const Corners& corners, int i)
{
    const __m128i pair12 =
        _mm_unpacklo_epi16(LoadCorner(cube, corners.first[i]), LoadCorner(cube, corners.second[i]));
    const __m128i pair34 =
        _mm_unpacklo_epi16(LoadCorner(cube, corners.third[i]), LoadCorner(cube, corners.fourth[i]));
    return _mm_add_epi32(_mm_madd_epi16(pair12, _mm_set1_epi32(corners.weights12[i])),
                         _mm_madd_epi16(pair34, _mm_set1_epi32(corners.weights34[i])));
}

LUMETRA_KERNEL_INLINE __m128i Round(__m128i sum)
{
    return _mm_srai_epi32(_mm_add_epi32(sum, _mm_set1_epi32(Half)), Shift);
}

LUMETRA_KERNEL_INLINE void Store(const std::int16_t* cube, const Corners& corners,
                                 const std::uint8_t* source, std::uint8_t* target, int count)
{
    const __m128i alpha = _mm_set1_epi32(static_cast<int>(0xFF000000u));
    int i = 0;
    for (; i + 4 <= count; i += 4) {
        const __m128i low =
            _mm_packs_epi32(Round(Sum(cube, corners, i)), Round(Sum(cube, corners, i + 1)));
        const __m128i high =
            _mm_packs_epi32(Round(Sum(cube, corners, i + 2)), Round(Sum(cube, corners, i + 3)));
        const __m128i colours = _mm_packus_epi16(low, high);
        const __m128i pixels = _mm_loadu_si128(reinterpret_cast<const __m128i*>(source + 4 * i));
        _mm_storeu_si128(
            reinterpret_cast<__m128i*>(target + 4 * i),
            _mm_or_si128(_mm_andnot_si128(alpha, colours), _mm_and_si128(alpha, pixels)));
    }
    for (; i < count; ++i) {
        const __m128i words = _mm_packs_epi32(Round(Sum(cube, corners, i)), _mm_setzero_si128());
        const auto colour = static_cast<std::uint32_t>(
            _mm_cvtsi128_si32(_mm_packus_epi16(words, _mm_setzero_si128())));
        const std::uint32_t pixel = reinterpret_cast<const PackedPixel8*>(source)[i];
        reinterpret_cast<PackedPixel8*>(target)[i] = (colour & 0x00FFFFFFu) | (pixel & 0xFF000000u);
    }
}

LUMETRA_KERNEL_INLINE void Load(const std::int16_t* cube, const Corners& corners, const Tile& tile)
{
    int i = 0;
    for (; i + 4 <= tile.count; i += 4) {
        const __m128 scale = _mm_set1_ps(Unit);
        __m128 red = _mm_mul_ps(_mm_cvtepi32_ps(Sum(cube, corners, i)), scale);
        __m128 green = _mm_mul_ps(_mm_cvtepi32_ps(Sum(cube, corners, i + 1)), scale);
        __m128 blue = _mm_mul_ps(_mm_cvtepi32_ps(Sum(cube, corners, i + 2)), scale);
        __m128 nothing = _mm_mul_ps(_mm_cvtepi32_ps(Sum(cube, corners, i + 3)), scale);
        _MM_TRANSPOSE4_PS(red, green, blue, nothing);
        _mm_storeu_ps(tile.red + i, red);
        _mm_storeu_ps(tile.green + i, green);
        _mm_storeu_ps(tile.blue + i, blue);
    }
    for (; i < tile.count; ++i) {
        alignas(16) std::int32_t sums[4];
        _mm_store_si128(reinterpret_cast<__m128i*>(sums), Sum(cube, corners, i));
        tile.red[i] = static_cast<float>(sums[0]) * Unit;
        tile.green[i] = static_cast<float>(sums[1]) * Unit;
        tile.blue[i] = static_cast<float>(sums[2]) * Unit;
    }
}

#else

LUMETRA_KERNEL_INLINE std::int32_t Sum(const std::int16_t* cube, const Corners& corners, int i)
{
    return cube[corners.first[i]] * (corners.weights12[i] & 0xFFFF) +
           cube[corners.second[i]] * (corners.weights12[i] >> 16) +
           cube[corners.third[i]] * (corners.weights34[i] & 0xFFFF) +
           cube[corners.fourth[i]] * (corners.weights34[i] >> 16);
}

LUMETRA_KERNEL_INLINE void Store(const std::int16_t* cube, const Corners& corners,
                                 const std::uint8_t* source, std::uint8_t* target, int count)
{
    for (int i = 0; i < count; ++i) {
        for (int channel = 0; channel < 3; ++channel) {
            const std::int32_t value = (Sum(cube + channel, corners, i) + Half) >> Shift;
            target[4 * i + channel] = static_cast<std::uint8_t>(Smaller(Larger(value, 0), 255));
        }
        target[4 * i + 3] = source[4 * i + 3];
    }
}

LUMETRA_KERNEL_INLINE void Load(const std::int16_t* cube, const Corners& corners, const Tile& tile)
{
    for (int i = 0; i < tile.count; ++i) {
        tile.red[i] = static_cast<float>(Sum(cube, corners, i)) * Unit;
        tile.green[i] = static_cast<float>(Sum(cube + 1, corners, i)) * Unit;
        tile.blue[i] = static_cast<float>(Sum(cube + 2, corners, i)) * Unit;
    }
}

#endif

/// Has no branches, because marked pixels come at random.
LUMETRA_KERNEL_INLINE void FindMarkedPixels(const std::int16_t* cube, const Corners& corners,
                                            const PackedPixel8* source, int count,
                                            MarkedPixels& rest)
{
    int found = 0;
    for (int i = 0; i < count; ++i) {
        rest.positions[found] = i;
        rest.colours[found] = source[i];
        found += cube[corners.first[i] + ColourCube::Mark];
    }
    rest.count = found;
}

template <int points>
LUMETRA_KERNEL_INLINE void Find(const std::int16_t* cube, const std::uint8_t* source, int count,
                                Corners& corners, MarkedPixels& rest)
{
    const auto* const pixels = reinterpret_cast<const PackedPixel8*>(source);
    FindCorners<points>(corners, pixels, count);
    FindMarkedPixels(cube, corners, pixels, count, rest);
}

#ifdef LUMETRA_KERNEL_GATHERS

template <int points>
LUMETRA_KERNEL_INLINE void Draw(const std::int16_t* cube, const std::uint8_t* source,
                                std::uint8_t* target, int count, MarkedPixels& rest)
{
    DrawByGather<points>(cube, source, target, count, rest);
}

#else

template <int points>
LUMETRA_KERNEL_INLINE void Draw(const std::int16_t* cube, const std::uint8_t* source,
                                std::uint8_t* target, int count, MarkedPixels& rest)
{
    Corners corners;
    Find<points>(cube, source, count, corners, rest);
    Store(cube, corners, source, target, count);
}

#endif

} // namespace

template <Isa isa>
void ColourCubeKernel8<isa>::Run(const std::int16_t* cube, int points, const std::uint8_t* source,
                                 std::uint8_t* target, int pixels, MarkedPixels& rest)
{
    if (points == ColourCube::CoarsePoints)
        Draw<ColourCube::CoarsePoints>(cube, source, target, pixels, rest);
    else
        Draw<ColourCube::FinePoints>(cube, source, target, pixels, rest);
}

template <Isa isa>
void ColourCubeLoadKernel8<isa>::Run(const std::int16_t* cube, int points,
                                     const std::uint8_t* source, const Tile& tile,
                                     MarkedPixels& rest)
{
    Corners corners;
    if (points == ColourCube::CoarsePoints)
        Find<ColourCube::CoarsePoints>(cube, source, tile.count, corners, rest);
    else
        Find<ColourCube::FinePoints>(cube, source, tile.count, corners, rest);
    Load(cube, corners, tile);
}

template struct ColourCubeKernel8<KernelIsa>;
template struct ColourCubeLoadKernel8<KernelIsa>;

} // namespace LumetraHost
