// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/run/RenderPlan.h"

#include "engine/effects/EffectKinds.h"

#include <utility>

namespace LumetraHost {

RenderPlan::RenderPlan(const Zorvik::Quindle::EffectList& effects, const StageContext& context,
                       std::optional<ColourSpace> first)
    : m_isa(context.isa), m_depth(context.depth), m_first(first)
{
    m_stages.emplace_back();
    for (const auto& effect : effects) {
        const EffectKind* const kind = effect ? EffectKinds::Find(effect->GetEffectID()) : nullptr;
        if (!kind)
            continue;
        if (auto pass = kind->createPass ? kind->createPass(*effect, context) : nullptr) {
            m_passes.push_back(std::move(pass));
            m_stages.emplace_back();
        } else if (auto stage = kind->createStage(*effect, context)) {
            m_stages.back().push_back(std::move(stage));
        }
    }
}

std::vector<StageChain> RenderPlan::MakeChains(ChainEnd end) const
{
    std::vector<StageChain> chains;
    std::optional<ColourSpace> first = m_first;
    for (std::size_t i = 0; i < m_stages.size(); ++i) {
        std::optional<ColourSpace> last;
        if (i > 0)
            first = m_passes[i - 1]->GetColourSpace();
        if (i < m_passes.size())
            last = m_passes[i]->GetColourSpace();
        const bool isLast = i == m_passes.size();
        chains.emplace_back(m_stages[i], m_isa, m_depth, first, last,
                            isLast ? end : ChainEnd::Tiles);
    }
    return chains;
}

bool RenderPlan::IsEmpty() const
{
    return m_passes.empty() && m_stages.front().empty();
}

} // namespace LumetraHost
