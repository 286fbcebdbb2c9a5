// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <vector>

namespace LumetraHost {

/// The source pixels along one axis that a shrunk pixel averages, and the share of each. The pixels
/// of the target divide the length of the source evenly; a source pixel that two of them share
/// counts for each by the part that lies in it.
class AreaAxis
{
public:
    /// A source pixel's share in a target pixel.
    struct Share
    {
        int source;
        float weight; ///< the shares of a target pixel make 1
    };

    /// `target`: 1 to `source` pixels.
    AreaAxis(int source, int target);
    /// Averages only the part from `begin` on; it lies inside of the source and is at least as long
    /// as the target. Its ends may lie within pixels.
    AreaAxis(int source, double begin, double length, int target);

    /// Source pixels of each target pixel where that is a whole number, else 0.
    int GetWholeFactor() const { return m_wholeFactor; }

    const Share* Begin(int target) const { return m_shares.data() + m_begins[Index(target)]; }
    const Share* End(int target) const { return m_shares.data() + m_begins[Index(target) + 1]; }
    /// First source pixel of the pixel `target`.
    int GetFirst(int target) const { return Begin(target)->source; }
    /// One behind the last source pixel of the pixel `target`.
    int GetEnd(int target) const { return (End(target) - 1)->source + 1; }

private:
    static std::size_t Index(int target) { return static_cast<std::size_t>(target); }

    void AddShares(int source, double begin, double length);

    int m_wholeFactor = 0;
    std::vector<Share> m_shares;
    std::vector<std::size_t> m_begins; ///< of each target pixel in m_shares, and the end
};

} // namespace LumetraHost
