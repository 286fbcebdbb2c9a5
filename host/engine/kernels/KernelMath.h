// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/kernels/KernelLoops.h"

#include <cstdint>
#include <cstring>

// Only for kernel sources. They are compiled several times with different instruction sets, so
// everything here has internal linkage and is inlined: an inline function with external linkage
// would let the linker keep the copy that an older processor cannot run. For the same reason kernel
// sources use nothing of the standard library but such headers.
//
// The functions use plain IEEE operations in a fixed order and without branches, so that the
// compiler turns loops over them into vector code. Where there is fused multiply-add it may
// contract a product and a sum, in the vector code and in its rest alike: one instruction set gives
// the same bits whatever the length of the tiles.
namespace LumetraHost {

/// The instruction set that this translation unit is compiled for.
constexpr Isa KernelIsa = Isa::LUMETRA_KERNEL_ISA;

#define LUMETRA_KERNEL_INLINE [[maybe_unused]] static inline __attribute__((always_inline))

LUMETRA_KERNEL_INLINE float FloatFromBits(std::int32_t bits)
{
    float value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

LUMETRA_KERNEL_INLINE std::int32_t BitsFromFloat(float value)
{
    std::int32_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

LUMETRA_KERNEL_INLINE std::int32_t Smaller(std::int32_t first, std::int32_t second)
{
    return first < second ? first : second;
}

LUMETRA_KERNEL_INLINE std::int32_t Larger(std::int32_t first, std::int32_t second)
{
    return first > second ? first : second;
}

// Floats of one sign are ordered as their bits are. Limits and signs are therefore taken on
// integers, for which compilers have vector instructions without regard to NaN and signed zero.

/// `value` limited to [low, high] with 0 <= low. A NaN becomes one of the two.
LUMETRA_KERNEL_INLINE float ClampPositive(float value, float low, float high)
{
    return FloatFromBits(
        Smaller(Larger(BitsFromFloat(value), BitsFromFloat(low)), BitsFromFloat(high)));
}

/// The bits of a float but its sign.
constexpr std::int32_t SizeMask = 0x7FFFFFFF;

LUMETRA_KERNEL_INLINE float GetSize(float value)
{
    return FloatFromBits(BitsFromFloat(value) & SizeMask);
}

LUMETRA_KERNEL_INLINE float Min(float first, float second)
{
    return first < second ? first : second;
}

LUMETRA_KERNEL_INLINE float Max(float first, float second)
{
    return first > second ? first : second;
}

/// `value` limited to [low, high], of any signs. A NaN becomes `low`.
LUMETRA_KERNEL_INLINE float Clamp(float value, float low, float high)
{
    return Min(Max(value, low), high);
}

/// The positive `size` with the sign of `sign`.
LUMETRA_KERNEL_INLINE float WithSignOf(float size, float sign)
{
    return FloatFromBits(BitsFromFloat(size) | (BitsFromFloat(sign) & ~SizeMask));
}

/// The binary logarithm of a positive normal number, error below 3e-9 + rounding.
/// With value = m * 2^e and m in [sqrt(1/2), sqrt(2)): log2(m) = 2/ln 2 * atanh((m-1)/(m+1)), the
/// series fitted by minimax polynomial in the square of the argument.
LUMETRA_KERNEL_INLINE float Log2(float value)
{
    const std::int32_t bits = BitsFromFloat(value);
    const std::int32_t exponent = (bits - 0x3f3504f3) >> 23;
    const float m = FloatFromBits(bits - exponent * (1 << 23));
    const float s = (m - 1.0f) / (m + 1.0f);
    const float z = s * s;
    float p = 0.43171769746f;
    p = p * z + 0.576715186019f;
    p = p * z + 0.961798838802f;
    p = p * z + 2.8853900798f;
    return s * p + static_cast<float>(exponent);
}

/// 2 to the power `value`, which must lie within -126 to 126; relative error below 2e-9 + rounding.
LUMETRA_KERNEL_INLINE float Exp2(float value)
{
    const std::int32_t biased = static_cast<std::int32_t>(value + 127.5f);
    const float f = value - static_cast<float>(biased - 127);
    float p = 0.000154614446986f;
    p = p * f + 0.00134004281776f;
    p = p * f + 0.00961805667852f;
    p = p * f + 0.0555032722667f;
    p = p * f + 0.240226509223f;
    p = p * f + 0.693147206703f;
    p = p * f + 1.0f;
    return p * FloatFromBits(biased * (1 << 23));
}

} // namespace LumetraHost
