// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/clarity/ClarityPass.h"

#include "engine/effects/clarity/ClarityKernel.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/stages/RelativeRadius.h"

namespace LumetraHost {

ClarityPass::ClarityPass(const ClarityParameters& parameters, const StageContext& context)
    : m_shape(MakeRelativeShape(parameters.radius, context.area)),
      m_amount(static_cast<float>(parameters.amount / 100)),
      m_kernel(SelectKernel<ClarityKernel>(context.isa))
{
}

void ClarityPass::Combine(const Tile& tile, const BlurredTile& blurred) const
{
    m_kernel(tile, blurred.planes[0], m_amount);
}

} // namespace LumetraHost
