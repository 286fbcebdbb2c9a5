// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/liftgammagain/LiftGammaGainKernel.h"

#include "engine/kernels/KernelMath.h"
#include "image/Srgb.h"

namespace LumetraHost {
namespace {

// Lies within the range of Log2; any power of it is too small to be seen.
constexpr float Smallest = 1e-37f;
constexpr float Largest = 1e37f;
constexpr float SmallestExponent = -120.0f;
// No power of a colour inside of the picture's range comes this far: (1 * 10 + 2)^10 is below 2^36.
// Later effects multiply such a power again; without a limit they would subtract infinities.
constexpr float LargestExponent = 40.0f;

/// Leaves zero and negative values as they are.
LUMETRA_KERNEL_INLINE float Power(float value, float power)
{
    const float exponent = power * Log2(Clamp(value, Smallest, Largest));
    const float result = Exp2(Clamp(exponent, SmallestExponent, LargestExponent));
    return value > 0.0f ? result : value;
}

template <bool clamps>
LUMETRA_KERNEL_INLINE float Limit(float value)
{
    if constexpr (clamps)
        return Clamp(value, 0.0f, 1.0f);
    else
        return value;
}

template <bool clamps>
LUMETRA_KERNEL_INLINE void RunPlane(float* __restrict plane, int count, float slope, float offset)
{
    for (int i = 0; i < count; ++i)
        plane[i] = Limit<clamps>(plane[i] * slope + offset);
}

template <bool clamps>
LUMETRA_KERNEL_INLINE void RunPowerPlane(float* __restrict plane, int count, float slope,
                                         float offset, float power)
{
    for (int i = 0; i < count; ++i)
        plane[i] = Power(Limit<clamps>(plane[i] * slope + offset), power);
}

template <bool clamps>
LUMETRA_KERNEL_INLINE void Saturate(const Tile& tile, float saturation)
{
    float* __restrict red = tile.red;
    float* __restrict green = tile.green;
    float* __restrict blue = tile.blue;
    const int count = tile.count;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        const float luma = static_cast<float>(LumaRed) * red[i] +
                           static_cast<float>(LumaGreen) * green[i] +
                           static_cast<float>(LumaBlue) * blue[i];
        red[i] = Limit<clamps>(luma + saturation * (red[i] - luma));
        green[i] = Limit<clamps>(luma + saturation * (green[i] - luma));
        blue[i] = Limit<clamps>(luma + saturation * (blue[i] - luma));
    }
}

template <bool clamps>
LUMETRA_KERNEL_INLINE void RunTile(const Tile& tile, const LiftGammaGainNumbers& n)
{
    float* const planes[3] = {tile.red, tile.green, tile.blue};
    for (int c = 0; c < 3; ++c) {
        if (n.hasPower)
            RunPowerPlane<clamps>(planes[c], tile.count, n.slope[c], n.offset[c], n.power[c]);
        else
            RunPlane<clamps>(planes[c], tile.count, n.slope[c], n.offset[c]);
    }
    if (n.saturation != 1.0f)
        Saturate<clamps>(tile, n.saturation);
}

} // namespace

template <Isa isa>
void LiftGammaGainKernel<isa>::Run(const Tile& tile, const LiftGammaGainNumbers& numbers)
{
    if (numbers.clamp)
        RunTile<true>(tile, numbers);
    else
        RunTile<false>(tile, numbers);
}

template struct LiftGammaGainKernel<KernelIsa>;

} // namespace LumetraHost
