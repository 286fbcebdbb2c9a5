// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/stages/TransferStage.h"

#include "engine/kernels/KernelSelection.h"
#include "engine/kernels/RootTableKernel.h"

#include <utility>

namespace LumetraHost {

TransferStage::TransferStage(std::shared_ptr<const RgbSpace> space, Direction direction, Isa isa)
    : m_space(std::move(space)), m_kernel(SelectKernel<RootTableKernel>(isa))
{
    for (std::size_t channel = 0; channel < m_tables.size(); ++channel)
        m_tables[channel] = direction == Direction::Load ? m_space->GetDecoding(channel)
                                                         : m_space->GetEncoding(channel);
}

void TransferStage::Run(const Tile& tile) const
{
    m_kernel(tile, m_tables.data());
}

} // namespace LumetraHost
