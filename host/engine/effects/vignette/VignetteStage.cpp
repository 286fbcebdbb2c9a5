// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/vignette/VignetteStage.h"

#include "engine/kernels/KernelSelection.h"

namespace LumetraHost {

VignetteStage::VignetteStage(const VignetteParameters& parameters, const StageContext& context)
    : m_geometry(VignetteGeometry::Make(parameters, context.area)),
      m_kernel(SelectKernel<VignetteKernel>(context.isa))
{
}

void VignetteStage::Run(const Tile& tile) const
{
    const double y = tile.y * m_geometry.stepY + m_geometry.startY;
    VignetteRow row;
    row.stepX = static_cast<float>(m_geometry.stepX);
    row.startX = static_cast<float>(m_geometry.startX);
    row.distanceY2 = static_cast<float>(y * y);
    row.slope = static_cast<float>(m_geometry.slope);
    row.start = static_cast<float>(m_geometry.start);
    row.gain = static_cast<float>(m_geometry.gain);
    m_kernel(tile, row);
}

} // namespace LumetraHost
