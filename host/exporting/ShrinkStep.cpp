// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/ShrinkStep.h"

#include <algorithm>

namespace LumetraHost {

ShrinkStep::ShrinkStep(int sourceWidth, int sourceHeight, int width, int height, int bandRows)
    : m_average(sourceWidth, sourceHeight, width, height)
{
    const int bands = (sourceHeight + bandRows - 1) / bandRows;
    int next = 0;
    for (int band = 0; band < bands; ++band) {
        // Bands that make no row also keep the rows that the next one reads.
        const int firstRow = next < height ? m_average.GetFirstRow(next) : sourceHeight - 1;
        m_reach.first.push_back(std::min(firstRow / bandRows, band));
        m_reach.last.push_back(band);
        while (next < height && m_average.GetRowEnd(next) <= (band + 1) * bandRows)
            ++next;
        m_ends.push_back(next);
    }
}

int ShrinkStep::GetLatency() const
{
    int latency = 0;
    for (std::size_t band = 0; band < m_ends.size(); ++band)
        latency = std::max(latency, m_reach.last[band] - m_reach.first[band]);
    return latency;
}

} // namespace LumetraHost
