// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/stages/SpatialPass.h"
#include "engine/stages/StageChain.h"

#include "Zorvik/Quindle/EffectsSettings.h"

#include <optional>
#include <vector>

namespace LumetraHost {

/// A list of effects made ready to run: a chain of stages before, between and behind its spatial
/// passes. Chains may be empty. Effects that change nothing and effects that the engine does not
/// know are left out. Where the picture is in a space of its own and there is something to draw,
/// the first chain begins with the way from that space, and the last one ends with the way back.
/// Immutable; what the effects hold has been read.
class RenderPlan
{
public:
    /// `first`: the space in which pixels come into the first chain; empty: its own choice.
    RenderPlan(const Zorvik::Quindle::EffectList& effects, const StageContext& context,
               std::optional<ColourSpace> first = {});

    /// Draws nothing but the way from the picture's space to another; null: sRGB. The context has a
    /// space.
    static RenderPlan MakeConversion(const StageContext& context,
                                     const std::shared_ptr<const RgbSpace>& target);

    /// Nothing to draw.
    bool IsEmpty() const;
    const std::vector<SpatialPassPtr>& GetPasses() const { return m_passes; }
    /// The chains, one more than passes: chain i comes before pass i, the last one behind all. Each
    /// call makes them anew, which takes as long as drawing some ten thousand pixels. `end`: that
    /// of the last chain.
    std::vector<StageChain> MakeChains(ChainEnd end = ChainEnd::Tiles) const;
    /// The stages as the effects gave them, and those of the picture's space around them, of plans
    /// without spatial passes.
    const std::vector<StagePtr>& GetFirstStages() const { return m_stages.front(); }
    /// Those stages with the way to the space `target` at their end in place of that back to the
    /// picture's; null: the way to sRGB. For plans that are not empty, of pictures with a space.
    std::vector<StagePtr> GetStagesInto(const std::shared_ptr<const RgbSpace>& target) const;
    /// The first of them that an effect gave, and one behind the last.
    std::size_t GetFirstOfEffects() const { return m_fromSpace; }
    std::size_t GetEndOfEffects() const { return m_stages.front().size() - m_toSpace; }

private:
    void AddEffects(const Zorvik::Quindle::EffectList& effects, const StageContext& context);
    void AddSpace(const StageContext& context);

    Isa m_isa;
    Image::Depth m_depth;
    std::optional<ColourSpace> m_first;
    std::vector<SpatialPassPtr> m_passes;
    std::vector<std::vector<StagePtr>> m_stages;
    std::size_t m_fromSpace = 0; ///< stages at the beginning of the first chain
    std::size_t m_toSpace = 0;   ///< stages at the end of the last chain
};

} // namespace LumetraHost
