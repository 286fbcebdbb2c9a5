// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/run/RenderPlan.h"

#include "engine/effects/EffectKinds.h"
#include "engine/stages/SpaceStages.h"

#include <utility>

namespace LumetraHost {

RenderPlan::RenderPlan(const Zorvik::Quindle::EffectList& effects, const StageContext& context,
                       std::optional<ColourSpace> first)
    : m_isa(context.isa), m_depth(context.depth), m_first(first), m_stages(1)
{
    AddEffects(effects, context);
    if (context.space && !IsEmpty())
        AddSpace(context);
}

RenderPlan RenderPlan::MakeConversion(const StageContext& context,
                                      const std::shared_ptr<const RgbSpace>& target)
{
    RenderPlan plan({}, context);
    std::vector<StagePtr>& stages = plan.m_stages.front();
    stages = MakeStagesFromSpace(context.space, context.isa);
    plan.m_fromSpace = stages.size();
    if (target) {
        const auto to = MakeStagesToSpace(target, context.isa);
        stages.insert(stages.end(), to.begin(), to.end());
        plan.m_toSpace = to.size();
    }
    return plan;
}

void RenderPlan::AddEffects(const Zorvik::Quindle::EffectList& effects, const StageContext& context)
{
    for (auto effect = effects.begin(); effect != effects.end(); ++effect) {
        const EffectKind* const kind =
            *effect ? EffectKinds::Find((*effect)->GetEffectID()) : nullptr;
        if (!kind)
            continue;
        StageContext own = context;
        if (kind->reach == EffectReach::WholePicture && context.facts && !IsEmpty())
            own.facts = context.facts->With({effects.begin(), effect});
        if (auto pass = kind->createPass ? kind->createPass(**effect, own) : nullptr) {
            m_passes.push_back(std::move(pass));
            m_stages.emplace_back();
        } else if (auto stage = kind->createStage(**effect, own)) {
            m_stages.back().push_back(std::move(stage));
        }
    }
}

void RenderPlan::AddSpace(const StageContext& context)
{
    const auto from = MakeStagesFromSpace(context.space, context.isa);
    const auto to = MakeStagesToSpace(context.space, context.isa);
    m_stages.front().insert(m_stages.front().begin(), from.begin(), from.end());
    m_stages.back().insert(m_stages.back().end(), to.begin(), to.end());
    m_fromSpace = from.size();
    m_toSpace = to.size();
}

std::vector<StagePtr> RenderPlan::GetStagesInto(const std::shared_ptr<const RgbSpace>& target) const
{
    const std::vector<StagePtr>& own = m_stages.front();
    std::vector<StagePtr> stages(own.begin(), own.end() - static_cast<std::ptrdiff_t>(m_toSpace));
    if (target) {
        const auto to = MakeStagesToSpace(target, m_isa);
        stages.insert(stages.end(), to.begin(), to.end());
    }
    return stages;
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
