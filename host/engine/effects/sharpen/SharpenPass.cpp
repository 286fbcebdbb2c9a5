// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/sharpen/SharpenPass.h"

#include "engine/effects/sharpen/SharpenKernel.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/stages/RelativeRadius.h"

namespace LumetraHost {

SharpenPass::SharpenPass(const SharpenParameters& parameters, const StageContext& context)
    : m_shape(MakeRelativeShape(parameters.radius, context.area)),
      m_amount(static_cast<float>(parameters.amount / 100)),
      m_threshold(static_cast<float>(parameters.threshold / 255)),
      m_kernel(SelectKernel<SharpenKernel>(context.isa))
{
}

void SharpenPass::Combine(const Tile& tile, const BlurredTile& blurred) const
{
    m_kernel(tile, blurred.planes[0], m_amount, m_threshold);
}

} // namespace LumetraHost
