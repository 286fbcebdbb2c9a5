// SPDX-License-Identifier: GPL-2.0-or-later
#include "histogram/Histogram.h"

#include <algorithm>

namespace LumetraEditor {
namespace {

using LumetraHost::Image;

constexpr int SamplesPerSide = 256;

template <class Channel>
void CountRow(Histogram& histogram, const Channel* row, int width, int step)
{
    constexpr int shift = 8 * (sizeof(Channel) - 1);
    for (int x = step / 2; x < width; x += step)
        for (std::size_t channel = 0; channel < Histogram::Channels; ++channel)
            ++histogram
                  .channels[channel][row[Image::Channels * x + static_cast<int>(channel)] >> shift];
}

} // namespace

Histogram Histogram::Of(const Image& picture)
{
    Histogram histogram;
    const int width = picture.GetWidth();
    const int stepX = std::max(1, width / SamplesPerSide);
    const int stepY = std::max(1, picture.GetHeight() / SamplesPerSide);
    for (int y = stepY / 2; y < picture.GetHeight(); y += stepY) {
        if (picture.GetDepth() == Image::Depth::Bits16)
            CountRow(histogram, picture.Row16(y), width, stepX);
        else
            CountRow(histogram, picture.Row(y), width, stepX);
    }
    return histogram;
}

std::uint32_t Histogram::GetTallestInner() const
{
    std::uint32_t tallest = 0;
    std::uint32_t total = 0;
    for (const Counts& counts : channels) {
        tallest = std::max(tallest, *std::max_element(counts.begin() + 1, counts.end() - 1));
        total += counts.front() + counts.back();
    }
    // A picture of pure black and white has nothing in between.
    return tallest == 0 && total > 0 ? total : tallest;
}

bool Histogram::HasClippedShadows() const
{
    return std::any_of(channels.begin(), channels.end(),
                       [](const Counts& counts) { return counts.front() > 0; });
}

bool Histogram::HasClippedHighlights() const
{
    return std::any_of(channels.begin(), channels.end(),
                       [](const Counts& counts) { return counts.back() > 0; });
}

} // namespace LumetraEditor
