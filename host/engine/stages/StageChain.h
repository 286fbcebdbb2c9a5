// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/stages/Stage.h"
#include "engine/stages/StoreTable.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace LumetraHost {

/// Where the tiles of a chain go: to other stages or passes, or straight to pixels that are not
/// blended with others.
enum class ChainEnd
{
    Tiles,
    Pixels
};

/// Stages that follow each other without a pass in between. Neighbouring matrices become one;
/// conversions are put where the spaces of neighbours differ. With 8 bits, neighbours that take
/// each channel alone become one table (see CurveTableStage); those at the beginning of a chain
/// that reads pixels move into the tables of loading, those at the end of one that writes pixels
/// into the table of storing. Immutable.
class StageChain
{
public:
    /// `first`: the space in which tiles come. Empty: they are loaded from pixels, in the space of
    /// the first stage; without a stage, in `last`. `last`: the space in which tiles leave; empty:
    /// that of ChooseLastSpace().
    StageChain(const std::vector<StagePtr>& stages, Isa isa, Image::Depth depth,
               std::optional<ColourSpace> first = {}, std::optional<ColourSpace> last = {},
               ChainEnd end = ChainEnd::Tiles);

    /// The space in which stages leave a picture of that depth when nothing else is asked for.
    static ColourSpace ChooseLastSpace(const std::vector<StagePtr>& stages, Image::Depth depth,
                                       bool fromPixels);

    /// The largest number of stages, up to `wish`, behind which a chain may be cut in two that give
    /// identical values: no merged stage and no table of channels lies across the cut.
    static std::size_t FindCut(const std::vector<StagePtr>& stages, std::size_t wish,
                               Image::Depth depth);
    /// Colour space of the tiles behind the first `count` stages; `count` is at least 1 and a
    /// result of FindCut().
    static ColourSpace GetSpaceAtCut(const std::vector<StagePtr>& stages, std::size_t count,
                                     Image::Depth depth);
    /// True when tiles in `space` that passed the first `count` stages of another such chain may go
    /// on with the rest of these stages, with identical values. `count`: at least 1.
    static bool CanGoOnAt(const std::vector<StagePtr>& stages, std::size_t count, ColourSpace space,
                          Image::Depth depth);

    ColourSpace GetFirstSpace() const { return m_firstSpace; }
    ColourSpace GetLastSpace() const { return m_lastSpace; }
    void Run(const Tile& tile) const;

    /// The stages that are applied to the tables of loading, in GetFirstSpace(), and not by Run().
    const std::vector<StagePtr>& GetLoadingStages() const { return m_loading; }
    /// The table through which the encoded tiles that Run() leaves are stored. Null: they are
    /// stored without one.
    const std::shared_ptr<const StoreTable>& GetStoreTable() const { return m_storeTable; }
    /// The stages that Run() applies, merged and with the conversions.
    const std::vector<StagePtr>& GetStages() const { return m_stages; }

private:
    void AddMerged(const StagePtr& stage, Isa isa);
    void AddConversions(Isa isa);
    void TakeLoadingStages();
    void TakeStoringStages(Isa isa);
    void FuseChannels(Isa isa);

    std::vector<StagePtr> m_loading;
    std::vector<StagePtr> m_stages;
    std::shared_ptr<const StoreTable> m_storeTable;
    ColourSpace m_firstSpace = ColourSpace::Linear;
    ColourSpace m_lastSpace = ColourSpace::Linear;
};

} // namespace LumetraHost
