// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/kernels/SrgbKernel.h"

#include "engine/kernels/KernelMath.h"

namespace LumetraHost {
namespace {

// Lies far above the brightest light, and still within the range of Exp2.
constexpr float Largest = 1e15f;

LUMETRA_KERNEL_INLINE float Decode(float encoded)
{
    const float size = ClampPositive(GetSize(encoded), 0.0f, Largest);
    const float power = Exp2(2.4f * Log2((size + 0.055f) * (1.0f / 1.055f)));
    return WithSignOf(size <= 0.04045f ? size * (1.0f / 12.92f) : power, encoded);
}

LUMETRA_KERNEL_INLINE float Encode(float linear)
{
    const float size = ClampPositive(GetSize(linear), 1e-18f, Largest);
    const float power = 1.055f * Exp2((1.0f / 2.4f) * Log2(size)) - 0.055f;
    return WithSignOf(size <= 0.0031308f ? size * 12.92f : power, linear);
}

LUMETRA_KERNEL_INLINE void DecodePlane(float* __restrict plane, int count)
{
    for (int i = 0; i < count; ++i)
        plane[i] = Decode(plane[i]);
}

LUMETRA_KERNEL_INLINE void EncodePlane(float* __restrict plane, int count)
{
    for (int i = 0; i < count; ++i)
        plane[i] = Encode(plane[i]);
}

} // namespace

template <Isa isa>
void SrgbDecodeKernel<isa>::Run(const Tile& tile)
{
    DecodePlane(tile.red, tile.count);
    DecodePlane(tile.green, tile.count);
    DecodePlane(tile.blue, tile.count);
}

template <Isa isa>
void SrgbEncodeKernel<isa>::Run(const Tile& tile)
{
    EncodePlane(tile.red, tile.count);
    EncodePlane(tile.green, tile.count);
    EncodePlane(tile.blue, tile.count);
}

template struct SrgbDecodeKernel<KernelIsa>;
template struct SrgbEncodeKernel<KernelIsa>;

} // namespace LumetraHost
