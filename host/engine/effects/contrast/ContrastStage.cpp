// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/contrast/ContrastStage.h"

#include "engine/base/Srgb.h"
#include "engine/effects/contrast/ContrastKernel.h"
#include "engine/kernels/KernelSelection.h"

#include <cmath>

namespace LumetraHost {

// 0.18 * (c / 0.18)^e = 2^(e * log2(c) + (1 - e) * log2(0.18))
ContrastStage::ContrastStage(const ContrastParameters& parameters, const StageContext& context)
    : m_exponent(static_cast<float>(parameters.GetExponent())),
      m_offset(static_cast<float>((1 - parameters.GetExponent()) * std::log2(MiddleGrey))),
      m_kernel(SelectKernel<ContrastKernel>(context.isa))
{
}

void ContrastStage::Run(const Tile& tile) const
{
    m_kernel(tile, m_exponent, m_offset);
}

} // namespace LumetraHost
