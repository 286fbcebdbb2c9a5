// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/stages/StageChain.h"
#include "threads/CancelToken.h"
#include "threads/ThreadPool.h"

#include "image/Image.h"

#include <vector>

namespace LumetraHost {

class PixelStep;

/// How a segment's work is divided. Threads and tiles do not change the pixels.
struct SegmentOptions
{
    Isa isa = Isa::Baseline;
    Image::Depth depth = Image::Depth::Bits16; ///< of the pictures: how exact the stages have to be
    int threads = 0;                           ///< below 1: all of the pool
    int tilePixels = 2048;                     ///< 64 to 16384
    double sourceWeight = 0;                   ///< of the source in the result, 0 to 1
    const CancelToken* cancel = nullptr;
};

/// A run of stages over a picture, from pixels to pixels: each tile is loaded to planar float that
/// stays in the first-level cache, runs through all stages unclamped, is blended with the source
/// and rounded once. Tiles lie within one row and are independent of each other.
class Segment
{
public:
    static constexpr int BandRows = 32;
    static constexpr int SmallestTile = 64;
    static constexpr int LargestTile = 16384;

    /// Neighbouring matrices become one; conversions are put where the spaces of neighbours differ.
    Segment(const std::vector<StagePtr>& stages, const SegmentOptions& options);

    /// `target` has the size and depth of `source` and may be the same picture. Bands of rows are
    /// spread over the pool's threads. False when it was cancelled, and the target then holds
    /// anything.
    bool Run(const Image& source, Image& target, ThreadPool& pool) const;

    /// After merging and with the conversions.
    const std::vector<StagePtr>& GetStages() const { return m_chain.GetStages(); }

private:
    void RunRows(const Image& source, Image& target, const PixelStep& step, int first,
                 int end) const;

    SegmentOptions m_options;
    StageChain m_chain;
};

} // namespace LumetraHost
