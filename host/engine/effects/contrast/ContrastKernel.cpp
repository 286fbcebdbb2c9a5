// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/contrast/ContrastKernel.h"

#include "engine/kernels/KernelMath.h"

namespace LumetraHost {
namespace {

// The limits lie below the darkest 16-bit value and far above the brightest light; together with
// the range of the exponent (0.5 to 2) they keep Exp2 within its own range.
constexpr float Smallest = 1e-18f;
constexpr float Largest = 1e18f;

LUMETRA_KERNEL_INLINE void RunPlane(float* __restrict plane, int count, float exponent,
                                    float offset)
{
    for (int i = 0; i < count; ++i) {
        const float size = ClampPositive(GetSize(plane[i]), Smallest, Largest);
        plane[i] = WithSignOf(Exp2(exponent * Log2(size) + offset), plane[i]);
    }
}

} // namespace

template <Isa isa>
void ContrastKernel<isa>::Run(const Tile& tile, float exponent, float offset)
{
    RunPlane(tile.red, tile.count, exponent, offset);
    RunPlane(tile.green, tile.count, exponent, offset);
    RunPlane(tile.blue, tile.count, exponent, offset);
}

template struct ContrastKernel<KernelIsa>;

} // namespace LumetraHost
