// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/gaussianblur/GaussianBlurPass.h"

#include "engine/stages/RelativeRadius.h"

#include <algorithm>

namespace LumetraHost {

GaussianBlurPass::GaussianBlurPass(const GaussianBlurParameters& parameters,
                                   const StageContext& context)
    : m_shape(MakeRelativeShape(parameters.radius, context.area))
{
}

void GaussianBlurPass::Combine(const Tile& tile, const BlurredTile& blurred) const
{
    std::copy_n(blurred.planes[0], tile.count, tile.red);
    std::copy_n(blurred.planes[1], tile.count, tile.green);
    std::copy_n(blurred.planes[2], tile.count, tile.blue);
}

} // namespace LumetraHost
