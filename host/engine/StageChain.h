// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/Stage.h"

#include <optional>
#include <vector>

namespace LumetraHost {

/// Stages that follow each other without anything in between. Neighbouring matrices become one;
/// conversions are put where the spaces of neighbours differ. Immutable.
class StageChain
{
public:
    /// `first` and `last`: the space in which tiles come and have to leave; empty: as the stages
    /// like it, or as the other end says.
    StageChain(const std::vector<StagePtr>& stages, Isa isa, std::optional<ColourSpace> first = {},
               std::optional<ColourSpace> last = {});

    ColourSpace GetFirstSpace() const { return m_firstSpace; }
    ColourSpace GetLastSpace() const { return m_lastSpace; }
    void Run(const Tile& tile) const;

    /// After merging and with the conversions.
    const std::vector<StagePtr>& GetStages() const { return m_stages; }

private:
    void AddMerged(const StagePtr& stage, Isa isa);
    void AddConversions(Isa isa);

    std::vector<StagePtr> m_stages;
    ColourSpace m_firstSpace = ColourSpace::Linear;
    ColourSpace m_lastSpace = ColourSpace::Linear;
};

} // namespace LumetraHost
