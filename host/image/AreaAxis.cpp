// SPDX-License-Identifier: GPL-2.0-or-later
#include "image/AreaAxis.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace LumetraHost {
namespace {

/// Parts of a source pixel below this come from rounding and are left out.
constexpr double SmallestPart = 1e-3;

} // namespace

AreaAxis::AreaAxis(int source, int target) : AreaAxis(source, 0, source, target) {}

AreaAxis::AreaAxis(int source, double begin, double length, int target)
{
    const double perPixel = 1.0 / (static_cast<double>(target) / length);
    const int nearest = static_cast<int>(std::lround(perPixel));
    const bool isWhole = std::abs(perPixel - nearest) < std::numeric_limits<double>::epsilon();
    if (isWhole && begin == std::floor(begin))
        m_wholeFactor = nearest;
    for (int i = 0; i < target; ++i) {
        m_begins.push_back(m_shares.size());
        AddShares(source, begin + i * perPixel, perPixel);
    }
    m_begins.push_back(m_shares.size());
}

void AreaAxis::AddShares(int source, double begin, double length)
{
    const double end = begin + length;
    const double inside = std::min(length, source - begin);
    const int lastWhole = std::min(static_cast<int>(std::floor(end)), source - 1);
    const int firstWhole = std::min(static_cast<int>(std::ceil(begin)), lastWhole);
    if (firstWhole - begin > SmallestPart)
        m_shares.push_back({firstWhole - 1, static_cast<float>((firstWhole - begin) / inside)});
    for (int i = firstWhole; i < lastWhole; ++i)
        m_shares.push_back({i, static_cast<float>(1.0 / inside)});
    if (end - lastWhole > SmallestPart)
        m_shares.push_back(
            {lastWhole, static_cast<float>(std::min({end - lastWhole, 1.0, inside}) / inside)});
}

} // namespace LumetraHost
