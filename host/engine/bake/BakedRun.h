// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/CancelToken.h"
#include "engine/Isa.h"
#include "engine/Stage.h"
#include "engine/ThreadPool.h"

#include "photo/Image.h"

#include "Zorvik/Quindle/EffectsSettings.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace LumetraHost {

/// A run of colour effects as one table of 33 x 33 x 33 or 65 x 65 x 65 colours: quick to draw
/// with, whatever is in the run, and not exact. The small one is made in a fraction of the time
/// that a screen's picture takes: for pictures that are shown only until the exact ones are there.
/// The large one is for large pictures. Immutable.
///
/// A table is made only where it serves: a probe of some 4,000 colours must come out within one
/// step of 8 bits of the exact run. Runs that jump, and very steep ones, are refused.
class BakedRun
{
public:
    /// How far a probed colour may be off, in steps of 8 bits.
    static constexpr long Tolerance = 1;

    /// Entries along each axis.
    static constexpr int DragPoints = 33;
    static constexpr int ExportPoints = 65;

    /// `points`: one of the above. Null when the effects look at anything but the colour, when the
    /// probe fails, and when it was cancelled.
    static std::shared_ptr<const BakedRun> Make(const Zorvik::Quindle::EffectList& effects,
                                                int points, Isa isa, ThreadPool& pool,
                                                const CancelToken* cancel = nullptr);
    /// The same for stages, which must look at nothing but the colour.
    static std::shared_ptr<const BakedRun> Make(const std::vector<StagePtr>& stages, int points,
                                                Isa isa, ThreadPool& pool,
                                                const CancelToken* cancel = nullptr);

    /// The table on a picture of 8 bits, then the integer blend with it, see Blend(). `target` has
    /// its size and depth and is another picture. False when it was cancelled, and the target then
    /// holds anything.
    bool Run(const Image& source, Image& target, int blendAmount, ThreadPool& pool,
             const CancelToken* cancel = nullptr) const;
    /// The same for `pixels` pixels of one row, on the calling thread.
    void RunRow(const std::uint8_t* source, std::uint8_t* target, int pixels,
                int blendAmount) const;

private:
    BakedRun(Isa isa, int points);

    Isa m_isa;
    int m_points;
    std::vector<std::int16_t> m_cube;
};

} // namespace LumetraHost
