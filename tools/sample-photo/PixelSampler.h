// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Vec3.h"

#include <array>
#include <cstdint>
#include <vector>

namespace LumetraSample {

/// The decisions about one light path for which pairs of random numbers are drawn.
enum class Choice
{
    Pixel,
    Lens,
    Sun,
    Bounce,
    BounceSun,
    Gloss,
    Wave,
    Count
};

/// Evenly spread random pairs for the light paths of one pixel. Owned by a render thread and reset
/// for each pixel, so its numbers depend on seed and pixel only, never on the thread.
///
/// Each choice is a (0,2)-sequence (van der Corput and the second Sobol dimension) with random
/// digit scrambling (Kollig and Keller, 2002) in an own shuffled order, so that choices do not
/// depend on each other. It spreads best where the count is a power of two.
class PixelSampler
{
public:
    PixelSampler(std::uint32_t seed, int count);

    /// Begins the pixel at column `x`, row `y`.
    void Reset(int x, int y);

    /// The pair of path `index` (0 to count - 1) for `choice`, each in [0, 1).
    Vec2 Pair(int index, Choice choice) const;

private:
    void Shuffle(std::vector<Vec2>& pairs, std::uint32_t key) const;

    std::uint32_t m_seed;
    int m_count;
    std::array<std::vector<Vec2>, static_cast<std::size_t>(Choice::Count)> m_pairs;
};

} // namespace LumetraSample
