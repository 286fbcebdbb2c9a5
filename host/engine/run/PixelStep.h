// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/pixels/PixelKernel.h"
#include "engine/pixels/TableLoad.h"
#include "engine/stages/StageChain.h"

#include "image/Image.h"

#include <array>
#include <memory>
#include <vector>

namespace LumetraHost {

/// The way of pixels into tiles and back for pictures of one depth: kernels and tables are chosen
/// once. Immutable.
class PixelStep
{
public:
    /// Loads tiles for `first` and stores those of `last`, with the tables that the chains leave to
    /// loading and storing. `sourceWeight`: 0 to 1; 0 when `last` has a table to be stored with.
    PixelStep(Image::Depth depth, Isa isa, const StageChain& first, const StageChain& last,
              double sourceWeight);

    /// The end of a chain whose tiles are stored with that weight of the source.
    static ChainEnd GetEnd(double sourceWeight);

    /// `row` begins with the picture's first column; the tile's own pixels are read.
    void Load(const Tile& tile, const std::uint8_t* row) const;
    /// Blended with the source's row, whose alpha is kept; overwrites the tile. The rows may be the
    /// same.
    void Store(const Tile& tile, const std::uint8_t* sourceRow, std::uint8_t* targetRow) const;

private:
    std::size_t GetOffset(const Tile& tile) const;

    using Tables = std::array<std::vector<float>, 3>;

    static std::shared_ptr<const Tables> MakeTables(const StageChain& chain, const float* values);

    std::size_t m_bytesPerPixel;
    std::shared_ptr<const Tables> m_ownTables; ///< null: those that all share
    std::array<const float*, 3> m_tables;
    decltype(&LoadThroughTables8) m_loadThroughTables;
    decltype(&LoadUnitKernel8<Isa::Baseline>::Run) m_loadUnit = nullptr; ///< null: through tables
    decltype(&StoreKernel8<Isa::Baseline>::Run) m_store;
    std::shared_ptr<const StoreTable> m_storeTable; ///< null: m_store does it
    StoreParameters m_storing;
};

} // namespace LumetraHost
