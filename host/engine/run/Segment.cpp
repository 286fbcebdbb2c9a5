// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/run/Segment.h"

#include "engine/run/PixelStep.h"

#include <algorithm>
#include <memory>

namespace LumetraHost {
namespace {

/// The three planes of one thread.
struct alignas(64) TilePlanes
{
    float values[3][Segment::LargestTile];
};

TilePlanes& GetPlanesOfThread()
{
    thread_local const auto planes = std::make_unique<TilePlanes>();
    return *planes;
}

} // namespace

Segment::Segment(const std::vector<StagePtr>& stages, const SegmentOptions& options)
    : m_options(options),
      m_chain(stages, options.isa, options.depth, {}, {}, PixelStep::GetEnd(options.sourceWeight))
{
    m_options.tilePixels = std::clamp(options.tilePixels, SmallestTile, LargestTile);
}

bool Segment::Run(const Image& source, Image& target, ThreadPool& pool) const
{
    const PixelStep step(source.GetDepth(), m_options.isa, m_chain, m_chain,
                         m_options.sourceWeight);
    const CancelToken* const cancel = m_options.cancel;
    const int height = source.GetHeight();
    const int bands = (height + BandRows - 1) / BandRows;
    pool.ForEach(bands, m_options.threads, [&](int band) {
        if (cancel && cancel->IsCancelled())
            return;
        RunRows(source, target, step, band * BandRows, std::min(height, (band + 1) * BandRows));
    });
    return !(cancel && cancel->IsCancelled());
}

void Segment::RunRows(const Image& source, Image& target, const PixelStep& step, int first,
                      int end) const
{
    TilePlanes& planes = GetPlanesOfThread();
    Tile tile{planes.values[0], planes.values[1], planes.values[2]};
    for (tile.y = first; tile.y < end; ++tile.y)
        for (tile.x = 0; tile.x < source.GetWidth(); tile.x += m_options.tilePixels) {
            tile.count = std::min(m_options.tilePixels, source.GetWidth() - tile.x);
            step.Load(tile, source.Row(tile.y));
            m_chain.Run(tile);
            step.Store(tile, source.Row(tile.y), target.Row(tile.y));
        }
}

} // namespace LumetraHost
