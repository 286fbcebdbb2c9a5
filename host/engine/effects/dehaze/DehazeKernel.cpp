// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/dehaze/DehazeKernel.h"

#include "engine/kernels/HueMath.h"
#include "engine/kernels/KernelLoops.h"
#include "engine/kernels/KernelMath.h"

namespace LumetraHost {
namespace {

LUMETRA_KERNEL_INLINE float GetTransmission(const DehazeRow& row, const KernelColour& c, int x,
                                            float least)
{
    const float place = Clamp(row.start + static_cast<float>(x) * row.step, 0.0f, row.last);
    const auto low = static_cast<std::int32_t>(place);
    const std::int32_t high = Smaller(low + 1, static_cast<std::int32_t>(row.last));
    const float part = place - static_cast<float>(low);
    const float slope = row.slopes[low] + part * (row.slopes[high] - row.slopes[low]);
    const float offset = row.offsets[low] + part * (row.offsets[high] - row.offsets[low]);
    return Clamp(slope * Clamp(GetLuma(c), 0.0f, 1.0f) + offset, least, 1.0f);
}

} // namespace

template <Isa isa>
void DehazeKernel<isa>::Run(const Tile& tile, const DehazeRow& row, const DehazeNumbers& numbers)
{
    float* __restrict red = tile.red;
    float* __restrict green = tile.green;
    float* __restrict blue = tile.blue;
    const DehazeRow r = row;
    const DehazeNumbers n = numbers;
    const int x = tile.x;
    const int count = tile.count;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        const float transmission =
            GetTransmission(r, {red[i], green[i], blue[i]}, x + i, n.leastTransmission);
        // Added to the colour, so that where there is no haze nothing is rounded.
        const float more = Exp2(n.exponent * Log2(transmission) + n.shift) - 1.0f;
        red[i] += more * (red[i] - n.airLight[0]);
        green[i] += more * (green[i] - n.airLight[1]);
        blue[i] += more * (blue[i] - n.airLight[2]);
    }
}

template struct DehazeKernel<KernelIsa>;

} // namespace LumetraHost
