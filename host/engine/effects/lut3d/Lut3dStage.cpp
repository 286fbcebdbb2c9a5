// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/lut3d/Lut3dStage.h"

#include "engine/kernels/KernelSelection.h"

namespace LumetraHost {
namespace {

Lut3dGrid MakeGrid(const LookUpTablePtr& table)
{
    Lut3dGrid grid;
    if (!table)
        return grid;
    grid.values = table->values.data();
    grid.size = table->size;
    for (std::size_t c = 0; c < 3; ++c) {
        const double scale = (table->size - 1) / (table->maximum[c] - table->minimum[c]);
        grid.scale[c] = static_cast<float>(scale);
        grid.offset[c] = static_cast<float>(-table->minimum[c] * scale);
    }
    return grid;
}

} // namespace

Lut3dStage::Lut3dStage(const LookUpTablePtr& curve, const LookUpTablePtr& cube, double strength,
                       Isa isa)
    : m_curve(curve), m_cube(cube), m_kernel(SelectKernel<Lut3dKernel>(isa))
{
    m_numbers.curve = MakeGrid(curve);
    m_numbers.cube = MakeGrid(cube);
    m_numbers.strength = static_cast<float>(strength);
}

} // namespace LumetraHost
