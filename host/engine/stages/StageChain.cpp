// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/stages/StageChain.h"

#include "engine/stages/CurveTableStage.h"
#include "engine/stages/MatrixStage.h"
#include "engine/stages/SrgbStage.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace LumetraHost {
namespace {

bool IsOfChannels(const StagePtr& stage)
{
    return stage->GetChannelWork() != ChannelWork::Mixed;
}

bool IsHeavy(const StagePtr& stage)
{
    return stage->GetChannelWork() == ChannelWork::Heavy;
}

/// True when a chain merges the two stages, or may do so.
bool AreMerged(const StagePtr& first, const StagePtr& second, Image::Depth depth)
{
    if (depth == Image::Depth::Bits8 && IsOfChannels(first) && IsOfChannels(second))
        return true;
    return first->GetMatrix() && second->GetMatrix() &&
           first->GetColourSpace() == second->GetColourSpace();
}

/// True when the stages on both sides of `place` are merged, or when the last stage is merged with
/// storing its result.
bool IsInsideStep(const std::vector<StagePtr>& stages, std::size_t place, Image::Depth depth)
{
    const StagePtr& before = stages[place - 1];
    return place == stages.size() ? depth == Image::Depth::Bits8 && IsOfChannels(before)
                                  : AreMerged(before, stages[place], depth);
}

} // namespace

StageChain::StageChain(const std::vector<StagePtr>& stages, Isa isa, Image::Depth depth,
                       std::optional<ColourSpace> first, std::optional<ColourSpace> last,
                       ChainEnd end)
{
    for (const StagePtr& stage : stages)
        AddMerged(stage, isa);
    if (m_stages.empty()) {
        m_firstSpace = first.value_or(last.value_or(ColourSpace::Linear));
        m_lastSpace = last.value_or(m_firstSpace);
    } else {
        m_firstSpace = first.value_or(m_stages.front()->GetColourSpace());
        m_lastSpace = last.value_or(ChooseLastSpace(m_stages, depth, !first));
    }
    AddConversions(isa);
    if (depth != Image::Depth::Bits8)
        return;
    if (!first)
        TakeLoadingStages();
    if (end == ChainEnd::Pixels)
        TakeStoringStages(isa);
    FuseChannels(isa);
}

// Channels that go through a table anyway are encoded by that table at no cost.
ColourSpace StageChain::ChooseLastSpace(const std::vector<StagePtr>& stages, Image::Depth depth,
                                        bool fromPixels)
{
    const ColourSpace space = stages.back()->GetColourSpace();
    if (depth != Image::Depth::Bits8)
        return space;
    const auto mixed = std::find_if_not(stages.rbegin(), stages.rend(), IsOfChannels);
    const auto begin = mixed.base();
    if (begin == stages.end())
        return space;
    const bool isAll = begin == stages.begin();
    const bool isConverted =
        !isAll && (*std::prev(begin))->GetColourSpace() != (*begin)->GetColourSpace();
    const bool isTable =
        (isAll && fromPixels) || isConverted || std::any_of(begin, stages.end(), IsHeavy);
    return isTable ? ColourSpace::Encoded : space;
}

std::size_t StageChain::FindCut(const std::vector<StagePtr>& stages, std::size_t wish,
                                Image::Depth depth)
{
    std::size_t place = std::min(wish, stages.size());
    while (place > 0 && IsInsideStep(stages, place, depth))
        --place;
    return place;
}

// With 8 bits the stage behind the cut converts colours itself if it takes each channel alone.
ColourSpace StageChain::GetSpaceAtCut(const std::vector<StagePtr>& stages, std::size_t count,
                                      Image::Depth depth)
{
    if (count == stages.size())
        return ChooseLastSpace(stages, depth, true);
    const bool isConvertedLater = depth == Image::Depth::Bits8 && IsOfChannels(stages[count]);
    return stages[isConvertedLater ? count - 1 : count]->GetColourSpace();
}

// With 16 bits conversions are separate stages, so that tiles may also pass the cut before them.
bool StageChain::CanGoOnAt(const std::vector<StagePtr>& stages, std::size_t count,
                           ColourSpace space, Image::Depth depth)
{
    if (FindCut(stages, count, depth) != count)
        return false;
    return space == GetSpaceAtCut(stages, count, depth) ||
           (depth != Image::Depth::Bits8 && space == stages[count - 1]->GetColourSpace());
}

void StageChain::AddMerged(const StagePtr& stage, Isa isa)
{
    const auto matrix = stage->GetMatrix();
    const bool canMerge = matrix && !m_stages.empty() && m_stages.back()->GetMatrix() &&
                          m_stages.back()->GetColourSpace() == stage->GetColourSpace();
    if (canMerge)
        m_stages.back() = std::make_shared<MatrixStage>(
            (*matrix * *m_stages.back()->GetMatrix()).WithoutRounding(), stage->GetColourSpace(),
            isa);
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

void StageChain::TakeLoadingStages()
{
    const auto end = std::find_if_not(m_stages.begin(), m_stages.end(), IsOfChannels);
    m_loading.assign(m_stages.begin(), end);
    m_stages.erase(m_stages.begin(), end);
}

void StageChain::TakeStoringStages(Isa isa)
{
    const auto begin = std::find_if_not(m_stages.rbegin(), m_stages.rend(), IsOfChannels).base();
    const ColourSpace space =
        begin == m_stages.begin() ? m_firstSpace : (*std::prev(begin))->GetColourSpace();
    if (space != ColourSpace::Encoded || m_lastSpace != ColourSpace::Encoded ||
        std::none_of(begin, m_stages.end(), IsHeavy))
        return;
    m_storeTable = StoreTable::Make({begin, m_stages.end()}, isa);
    if (m_storeTable)
        m_stages.erase(begin, m_stages.end());
}

void StageChain::FuseChannels(Isa isa)
{
    std::vector<StagePtr> stages;
    for (auto next = m_stages.begin(); next != m_stages.end();) {
        const auto end = std::find_if_not(next, m_stages.end(), IsOfChannels);
        const bool isLast = end == m_stages.end();
        const std::vector<StagePtr> run(next, end);
        StagePtr table;
        if (std::any_of(run.begin(), run.end(), IsHeavy))
            table =
                CurveTableStage::Make(run, isLast ? m_lastSpace : (*end)->GetColourSpace(), isa);
        if (table)
            stages.push_back(table);
        else
            stages.insert(stages.end(), run.begin(), run.end());
        if (!isLast)
            stages.push_back(*end);
        next = isLast ? end : std::next(end);
    }
    m_stages = std::move(stages);
}

void StageChain::Run(const Tile& tile) const
{
    for (const StagePtr& stage : m_stages)
        stage->Run(tile);
}

} // namespace LumetraHost
