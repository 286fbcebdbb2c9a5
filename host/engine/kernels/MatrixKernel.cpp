// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/kernels/MatrixKernel.h"

#include "engine/kernels/KernelMath.h"

namespace LumetraHost {

template <Isa isa>
void MatrixKernel<isa>::Run(const Tile& tile, const float* m)
{
    float* __restrict red = tile.red;
    float* __restrict green = tile.green;
    float* __restrict blue = tile.blue;
    const float rr = m[0], rg = m[1], rb = m[2];
    const float gr = m[3], gg = m[4], gb = m[5];
    const float br = m[6], bg = m[7], bb = m[8];
    const int count = tile.count;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        const float r = red[i];
        const float g = green[i];
        const float b = blue[i];
        red[i] = rr * r + rg * g + rb * b;
        green[i] = gr * r + gg * g + gb * b;
        blue[i] = br * r + bg * g + bb * b;
    }
}

template <Isa isa>
void ScaleKernel<isa>::Run(const Tile& tile, const float* factors)
{
    float* __restrict red = tile.red;
    float* __restrict green = tile.green;
    float* __restrict blue = tile.blue;
    const float r = factors[0], g = factors[1], b = factors[2];
    const int count = tile.count;
    LUMETRA_KERNEL_INDEPENDENT
    for (int i = 0; i < count; ++i) {
        red[i] *= r;
        green[i] *= g;
        blue[i] *= b;
    }
}

template struct MatrixKernel<KernelIsa>;
template struct ScaleKernel<KernelIsa>;

} // namespace LumetraHost
