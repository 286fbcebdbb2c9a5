// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/stages/Stage.h"

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace LumetraHost {

/// Neighbouring stages at the end of a chain that take each channel alone, from encoded colours to
/// pixels of 8 bits: one look-up of a byte instead of curves, limiting and rounding. The nearest
/// entry is taken, which is off by Tolerance at most. Immutable.
class StoreTable
{
public:
    /// Largest error against the stages themselves before rounding, in steps of 8 bits.
    static constexpr float Tolerance = 0.05f;

    /// Null where the stages are too steep for the entries, and where colours beyond the table
    /// would not all become the entry at its end. `stages`: conversions included, none Mixed, from
    /// encoded colours to encoded ones.
    static std::shared_ptr<const StoreTable> Make(const std::vector<StagePtr>& stages, Isa isa);

    /// Stores the tile's pixels, with the alpha of `source`, which may be `target`. Both begin with
    /// the tile's first pixel.
    void Store(const Tile& tile, const std::uint8_t* source, std::uint8_t* target) const;

private:
    StoreTable() = default;

    void (*m_kernel)(const Tile&, const std::uint8_t* const*, const std::uint8_t*, std::uint8_t*);
    std::vector<std::uint8_t> m_entries;
    std::array<const std::uint8_t*, 3> m_tables{};
};

} // namespace LumetraHost
