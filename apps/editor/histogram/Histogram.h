// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

#include <array>
#include <cstdint>

namespace LumetraEditor {

/// How often each 8-bit value of red, green and blue occurs in a picture.
struct Histogram
{
    static constexpr int Channels = 3;
    static constexpr int Values = 256;
    using Counts = std::array<std::uint32_t, Values>;

    /// Counts a grid of at most about 65,000 pixels, so that it takes well under a millisecond
    /// whatever the picture's size. 16-bit values count by their upper 8 bits. A null picture:
    /// empty.
    static Histogram Of(const LumetraHost::Image& picture);

    /// The largest count between the two ends of the range; 0 for an empty histogram.
    std::uint32_t GetTallestInner() const;

    /// True when a channel has values at the lower or the upper end, where detail is lost.
    bool HasClippedShadows() const;
    bool HasClippedHighlights() const;

    std::array<Counts, Channels> channels{};
};

} // namespace LumetraEditor
