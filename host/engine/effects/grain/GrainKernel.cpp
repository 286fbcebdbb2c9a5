// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/grain/GrainKernel.h"

#include "engine/kernels/KernelMath.h"
#include "image/Srgb.h"

namespace LumetraHost {
namespace {

constexpr int BlockSize = 512;

/// A random number from -1 to 1.
LUMETRA_KERNEL_INLINE float GetLatticeValue(std::uint32_t corner)
{
    std::uint32_t h = corner;
    h ^= h >> 16;
    h *= 0x7feb352du;
    h ^= h >> 15;
    h *= 0x846ca68bu;
    h ^= h >> 16;
    return static_cast<float>(static_cast<std::int32_t>(h)) * (1.0f / 2147483648.0f);
}

LUMETRA_KERNEL_INLINE float SmoothStep(float t)
{
    return t * t * (3.0f - 2.0f * t);
}

// Positions need double precision: a column of a large picture times a small step would lose the
// place within the cell.
LUMETRA_KERNEL_INLINE void AddLayer(const GrainRowLayer& layer, float* __restrict noise, int first,
                                    int count)
{
    constexpr std::uint32_t StepU = 0x9E3779B1u;
    constexpr std::uint32_t StepV = 0x85EBCA77u;
    const GrainRowLayer l = layer;
    const std::uint32_t key = l.key * 0xC2B2AE3Du;
    for (int i = 0; i < count; ++i) {
        const double u = l.u + static_cast<double>(first + i) * l.ux;
        const double v = l.v + static_cast<double>(first + i) * l.vx;
        const auto cellU = static_cast<std::int32_t>(u);
        const auto cellV = static_cast<std::int32_t>(v);
        const float s = SmoothStep(static_cast<float>(u - static_cast<double>(cellU)));
        const float t = SmoothStep(static_cast<float>(v - static_cast<double>(cellV)));
        const std::uint32_t corner = static_cast<std::uint32_t>(cellU) * StepU +
                                     static_cast<std::uint32_t>(cellV) * StepV + key;
        const float a = GetLatticeValue(corner);
        const float b = GetLatticeValue(corner + StepU);
        const float c = GetLatticeValue(corner + StepV);
        const float d = GetLatticeValue(corner + StepU + StepV);
        const float top = a + s * (b - a);
        const float bottom = c + s * (d - c);
        noise[i] += l.strength * (top + t * (bottom - top));
    }
}

LUMETRA_KERNEL_INLINE void AddNoise(const Tile& tile, int begin, int count,
                                    const float* __restrict noise)
{
    float* __restrict red = tile.red + begin;
    float* __restrict green = tile.green + begin;
    float* __restrict blue = tile.blue + begin;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        const float luma =
            Clamp(static_cast<float>(LumaRed) * red[i] + static_cast<float>(LumaGreen) * green[i] +
                      static_cast<float>(LumaBlue) * blue[i],
                  0.0f, 1.0f);
        const float grain = __builtin_sqrtf(luma * (1.0f - luma)) * noise[i];
        red[i] += grain;
        green[i] += grain;
        blue[i] += grain;
    }
}

} // namespace

template <Isa isa>
void GrainKernel<isa>::Run(const Tile& tile, const GrainRow& row)
{
    for (int begin = 0; begin < tile.count; begin += BlockSize) {
        const int count = tile.count - begin < BlockSize ? tile.count - begin : BlockSize;
        alignas(64) float noise[BlockSize] = {};
        for (const GrainRowLayer& layer : row.layers)
            if (layer.strength != 0.0f)
                AddLayer(layer, noise, tile.x + begin, count);
        AddNoise(tile, begin, count, noise);
    }
}

template struct GrainKernel<KernelIsa>;

} // namespace LumetraHost
