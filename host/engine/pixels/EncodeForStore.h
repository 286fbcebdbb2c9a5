// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Tile.h"
#include "engine/kernels/KernelMath.h"

// Only for kernel sources: encodes a tile before it becomes integers.
namespace LumetraHost {
namespace {

enum class EncodePrecision
{
    Bits8,
    Bits16
};

/// sRGB encoding of a value in 0..1. The power 1/2.4 is the power 5/3 of the fourth root, which is
/// smooth enough there for a short minimax polynomial around 0.618: error 2e-6 (0.0005 steps of 8
/// bits) with degree 6, 3e-8 (0.002 steps of 16 bits) with degree 9.
template <EncodePrecision precision>
LUMETRA_KERNEL_INLINE float EncodeUnit(float linear)
{
    const float u = __builtin_sqrtf(__builtin_sqrtf(linear)) - 0.618f;
    float p;
    if constexpr (precision == EncodePrecision::Bits8) {
        p = 0.06173430755f;
        p = p * u - 0.06533682481f;
        p = p * u + 0.0654442903f;
        p = p * u - 0.1225429392f;
        p = p * u + 0.6881216999f;
        p = p * u + 1.275712341f;
        p = p * u + 0.4180422412f;
    } else {
        p = -0.1019112044f;
        p = p * u + 0.08605175444f;
        p = p * u - 0.03872135479f;
        p = p * u + 0.03994061973f;
        p = p * u - 0.0507507877f;
        p = p * u + 0.06702281757f;
        p = p * u - 0.1237075539f;
        p = p * u + 0.688092766f;
        p = p * u + 1.275734166f;
        p = p * u + 0.4180422513f;
    }
    // May end an ulp above 1, which packing limits.
    return linear <= 0.0031308f ? linear * 12.92f : p;
}

template <EncodePrecision precision>
LUMETRA_KERNEL_INLINE void EncodePlaneForStore(float* __restrict plane, int count)
{
    for (int i = 0; i < count; ++i)
        plane[i] = EncodeUnit<precision>(ClampPositive(plane[i], 0.0f, 1.0f));
}

template <EncodePrecision precision>
LUMETRA_KERNEL_INLINE void EncodeForStore(const Tile& tile)
{
    EncodePlaneForStore<precision>(tile.red, tile.count);
    EncodePlaneForStore<precision>(tile.green, tile.count);
    EncodePlaneForStore<precision>(tile.blue, tile.count);
}

} // namespace
} // namespace LumetraHost
