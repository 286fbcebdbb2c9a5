// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/stages/Stage.h"

#include <array>
#include <memory>
#include <vector>

namespace LumetraHost {

/// Neighbouring stages that take each channel alone, as one function per channel, drawn from a
/// table of straight pieces: one look-up instead of powers and logarithms, however many stages
/// there are. Not exact enough for pictures of 16 bits.
class CurveTableStage : public Stage
{
public:
    /// Largest distance between the pieces and the stages, in steps of 8 bits.
    static constexpr float Tolerance = 0.02f;

    /// Null where the stages bend too much for the pieces. `stages`: conversions included, none
    /// Mixed. `end`: the space in which the last one leaves colours.
    static std::shared_ptr<const CurveTableStage> Make(const std::vector<StagePtr>& stages,
                                                       ColourSpace end, Isa isa);

    void Run(const Tile& tile) const override { m_kernel(tile, m_tables.data()); }
    ColourSpace GetColourSpace() const override { return m_space; }
    ChannelWork GetChannelWork() const override { return ChannelWork::Heavy; }

private:
    CurveTableStage(ColourSpace space, Isa isa);

    ColourSpace m_space;
    void (*m_kernel)(const Tile&, const float* const*);
    std::vector<float> m_values;
    std::array<const float*, 3> m_tables{}; ///< channels that are alike share one
};

} // namespace LumetraHost
