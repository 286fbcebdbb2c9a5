// SPDX-License-Identifier: GPL-2.0-or-later
#include "PictureChange.h"

#include "image/Image.h"

#include <algorithm>
#include <cstdlib>

namespace LumetraTests {
namespace {

constexpr int Burnt = 254;
constexpr int Drowned = 3;

/// Two channels at the end of their range leave no gradation; one alone may be a pure colour.
int Middle(const std::uint8_t* pixel)
{
    return std::max(std::min(pixel[0], pixel[1]), std::min(std::max(pixel[0], pixel[1]), pixel[2]));
}

int Count(bool after, bool before)
{
    return static_cast<int>(after) - static_cast<int>(before);
}

} // namespace

PictureChange::PictureChange(const LumetraHost::Image& before, const LumetraHost::Image& after)
{
    long sum = 0;
    long clipped = 0;
    long drowned = 0;
    for (int y = 0; y < before.GetHeight(); ++y) {
        for (int x = 0; x < before.GetWidth(); ++x) {
            const std::uint8_t* const a = before.Row(y) + 4 * x;
            const std::uint8_t* const b = after.Row(y) + 4 * x;
            for (int channel = 0; channel < 3; ++channel)
                sum += std::abs(a[channel] - b[channel]);
            clipped += Count(Middle(b) >= Burnt, Middle(a) >= Burnt);
            drowned += Count(*std::max_element(b, b + 3) <= Drowned,
                             *std::max_element(a, a + 3) <= Drowned);
        }
    }
    const double pixels = static_cast<double>(before.GetWidth()) * before.GetHeight();
    mean = static_cast<double>(sum) / (3 * pixels);
    newlyClipped = static_cast<double>(clipped) / pixels;
    newlyDrowned = static_cast<double>(drowned) / pixels;
}

} // namespace LumetraTests
