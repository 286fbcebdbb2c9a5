// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/grain/GrainStage.h"

#include "engine/kernels/KernelSelection.h"

namespace LumetraHost {

GrainStage::GrainStage(const GrainParameters& parameters, const StageContext& context)
    : m_geometry(GrainGeometry::Make(parameters, context.area)),
      m_kernel(SelectKernel<GrainKernel>(context.isa))
{
}

void GrainStage::Run(const Tile& tile) const
{
    GrainRow row;
    for (std::size_t i = 0; i < 2; ++i) {
        const GrainLayer& layer = m_geometry.layers[i];
        row.layers[i] = {layer.u + tile.y * layer.uy,        layer.ux,
                         layer.v + tile.y * layer.vy,        layer.vx,
                         static_cast<float>(layer.strength), layer.key};
    }
    m_kernel(tile, row);
}

} // namespace LumetraHost
