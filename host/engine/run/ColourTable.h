// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/run/PixelStep.h"
#include "engine/stages/StageChain.h"
#include "threads/CancelToken.h"
#include "threads/ThreadPool.h"

#include "image/Image.h"

#include "Zorvik/Quindle/EffectsSettings.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace LumetraHost {

struct MarkedPixels;

/// A run of colour effects as one table of 33 x 33 x 33 or 65 x 65 x 65 colours: quick to draw
/// with, whatever is in the run, and within a step of 8 bits of the exact run. The small one is
/// made in a fraction of the time that a screen's picture takes: for pictures that are shown only
/// until the exact ones are there. The large one is for large pictures. Immutable.
///
/// Colours in cells where the run bends too sharply for the table (see CubeBends) are drawn
/// exactly. A table is made only where it serves: a probe of some 4,000 colours must come out
/// within one step of the exact run. Runs that jump, and those that bend nearly everywhere, are
/// refused.
class ColourTable
{
public:
    /// How far a probed colour may be off, in steps of 8 bits.
    static constexpr long Tolerance = 1;

    /// Entries along each axis.
    static constexpr int DragPoints = 33;
    static constexpr int ExportPoints = 65;

    /// `points`: one of the above. `space`: that of the pictures, see Image::GetSpace(); the
    /// table's colours are in it. Null when the effects look at anything but the colour, when the
    /// probe fails, and when it was cancelled.
    static std::shared_ptr<const ColourTable> Make(const Zorvik::Quindle::EffectList& effects,
                                                   int points, Isa isa, ThreadPool& pool,
                                                   const CancelToken* cancel = nullptr,
                                                   std::shared_ptr<const RgbSpace> space = nullptr);
    /// Makes a table that leads from pictures in `space`, which is not null, to those in `target`;
    /// null: to sRGB. A picture that is only shown needs no conversion for the screen then.
    static std::shared_ptr<const ColourTable>
    MakeInto(const std::shared_ptr<const RgbSpace>& target,
             const Zorvik::Quindle::EffectList& effects, int points, Isa isa, ThreadPool& pool,
             const CancelToken* cancel, const std::shared_ptr<const RgbSpace>& space);
    /// Makes the table of stages, which must look at nothing but the colour.
    static std::shared_ptr<const ColourTable> Make(const std::vector<StagePtr>& stages, int points,
                                                   Isa isa, ThreadPool& pool,
                                                   const CancelToken* cancel = nullptr);

    /// The table on `pixels` pixels of one row of 8 bits, then the integer blend with them, see
    /// Blend(). The rows may be the same. On the calling thread.
    void RunRow(const std::uint8_t* source, std::uint8_t* target, int pixels,
                int blendAmount) const;
    /// From a row of 8 bits, which begins with the picture's first column, to the tile: encoded,
    /// not limited, on the calling thread.
    void Load(const Tile& tile, const std::uint8_t* row) const;

private:
    ColourTable(const std::vector<StagePtr>& stages, Isa isa, int points);

    bool Fill(ThreadPool& pool, const CancelToken* cancel);
    bool Probe(ThreadPool& pool, const CancelToken* cancel) const;
    void RunPart(const std::uint8_t* source, std::uint8_t* target, int pixels, int amount) const;
    void DrawExactly(const MarkedPixels& rest, std::uint8_t* target) const;
    void LoadExactly(const MarkedPixels& rest, const Tile& target) const;

    Isa m_isa;
    int m_points;
    std::vector<std::int16_t> m_cube;
    StageChain m_chain;
    StageChain m_encodedChain; ///< from and to encoded colours
    PixelStep m_pixelStep;
    PixelStep m_encodedStep;
};

} // namespace LumetraHost
