// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/stages/SrgbStage.h"

#include "engine/kernels/KernelSelection.h"
#include "engine/kernels/SrgbKernel.h"

namespace LumetraHost {

SrgbStage::SrgbStage(ColourSpace target, Isa isa)
    : m_target(target),
      m_kernel(target == ColourSpace::Linear ? SelectKernel<SrgbDecodeKernel>(isa)
                                             : SelectKernel<SrgbEncodeKernel>(isa))
{
}

ColourSpace SrgbStage::GetColourSpace() const
{
    return m_target == ColourSpace::Linear ? ColourSpace::Encoded : ColourSpace::Linear;
}

} // namespace LumetraHost
