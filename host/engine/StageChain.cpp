// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/StageChain.h"

#include "engine/matrix/MatrixStage.h"
#include "engine/srgb/SrgbStage.h"

namespace LumetraHost {

StageChain::StageChain(const std::vector<StagePtr>& stages, Isa isa,
                       std::optional<ColourSpace> first, std::optional<ColourSpace> last)
{
    for (const StagePtr& stage : stages)
        AddMerged(stage, isa);
    if (m_stages.empty()) {
        m_firstSpace = first.value_or(last.value_or(ColourSpace::Linear));
        m_lastSpace = last.value_or(m_firstSpace);
    } else {
        m_firstSpace = first.value_or(m_stages.front()->GetColourSpace());
        m_lastSpace = last.value_or(m_stages.back()->GetColourSpace());
    }
    AddConversions(isa);
}

void StageChain::AddMerged(const StagePtr& stage, Isa isa)
{
    const auto matrix = stage->GetMatrix();
    const bool canMerge = matrix && !m_stages.empty() && m_stages.back()->GetMatrix() &&
                          m_stages.back()->GetColourSpace() == stage->GetColourSpace();
    if (canMerge)
        m_stages.back() = std::make_shared<MatrixStage>(*matrix * *m_stages.back()->GetMatrix(),
                                                        stage->GetColourSpace(), isa);
    else
        m_stages.push_back(stage);
}

void StageChain::AddConversions(Isa isa)
{
    std::vector<StagePtr> stages;
    ColourSpace space = m_firstSpace;
    const auto convert = [&](ColourSpace wanted) {
        if (space != wanted)
            stages.push_back(std::make_shared<SrgbStage>(wanted, isa));
        space = wanted;
    };
    for (const StagePtr& stage : m_stages) {
        convert(stage->GetColourSpace());
        stages.push_back(stage);
    }
    convert(m_lastSpace);
    m_stages = std::move(stages);
}

void StageChain::Run(const Tile& tile) const
{
    for (const StagePtr& stage : m_stages)
        stage->Run(tile);
}

} // namespace LumetraHost
