// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/AreaAverage.h"
#include "threads/BandGraph.h"

namespace LumetraHost {

/// Divides the rows of a shrunk picture among the bands of the large one: a band makes those whose
/// last source row lies in it.
class ShrinkStep
{
public:
    /// `bandRows`: rows of a band of the source.
    ShrinkStep(int sourceWidth, int sourceHeight, int width, int height, int bandRows);

    const AreaAverage& GetAverage() const { return m_average; }
    /// The rows of the target that a band makes, from the first to one behind the last.
    int GetFirst(int band) const { return band == 0 ? 0 : GetEnd(band - 1); }
    int GetEnd(int band) const { return m_ends[static_cast<std::size_t>(band)]; }
    /// The bands of the source that a band reads.
    const BandGraph::Reach& GetReach() const { return m_reach; }
    /// The most bands that a band looks back.
    int GetLatency() const;

private:
    AreaAverage m_average;
    std::vector<int> m_ends;
    BandGraph::Reach m_reach;
};

} // namespace LumetraHost
