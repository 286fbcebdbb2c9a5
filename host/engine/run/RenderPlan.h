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
/// know are left out. Immutable; what the effects hold has been read.
class RenderPlan
{
public:
    /// `first`: the space in which pixels come into the first chain; empty: its own choice.
    RenderPlan(const Zorvik::Quindle::EffectList& effects, const StageContext& context,
               std::optional<ColourSpace> first = {});

    /// Nothing to draw.
    bool IsEmpty() const;
    const std::vector<SpatialPassPtr>& GetPasses() const { return m_passes; }
    /// The chains, one more than passes: chain i comes before pass i, the last one behind all. Each
    /// call makes them anew, which takes as long as drawing some ten thousand pixels. `end`: that
    /// of the last chain.
    std::vector<StageChain> MakeChains(ChainEnd end = ChainEnd::Tiles) const;
    /// The stages as the effects gave them, of plans without spatial passes.
    const std::vector<StagePtr>& GetFirstStages() const { return m_stages.front(); }

private:
    Isa m_isa;
    Image::Depth m_depth;
    std::optional<ColourSpace> m_first;
    std::vector<SpatialPassPtr> m_passes;
    std::vector<std::vector<StagePtr>> m_stages;
};

} // namespace LumetraHost
