// SPDX-License-Identifier: GPL-2.0-or-later
#include "PhotoLikePicture.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace LumetraTests {
namespace {

using LumetraHost::Image;
using Color = std::array<double, 3>;

constexpr int Width = 150;
constexpr int Height = 100;
constexpr int BandHeight = 20;

/// Channels from 0 to 1; `hue` is in sixths of the circle.
Color MakeHue(double hue, double saturation, double value)
{
    Color color;
    for (std::size_t channel = 0; channel < 3; ++channel) {
        const double turned = std::fmod(hue + 6 - 2.0 * static_cast<double>(channel), 6);
        const double pure = std::clamp(std::abs(turned - 3) - 1, 0.0, 1.0);
        color[channel] = value * (1 - saturation * (1 - pure));
    }
    return color;
}

/// Bands of hues that fade to grey, and one of greys with fine structure.
Color ColorAt(int x, int y)
{
    const double across = static_cast<double>(x) / (Width - 1);
    const int band = y / BandHeight;
    if (band == 0) {
        const double structure = (x * 7 + y * 13) % 11 < 5 ? 0.06 : 0;
        return MakeHue(0, 0, std::max(0.0, across - structure));
    }
    const double down = static_cast<double>(y % BandHeight) / (BandHeight - 1);
    return MakeHue(6 * across, band / 4.0, 1 - 0.95 * down);
}

void Write(Image& image, int x, int y, int channel, double value)
{
    const int place = Image::Channels * x + channel;
    if (image.GetDepth() == Image::Depth::Bits16)
        image.Row16(y)[place] = static_cast<std::uint16_t>(std::lround(value * 65535));
    else
        image.Row(y)[place] = static_cast<std::uint8_t>(std::lround(value * 255));
}

} // namespace

Image MakePhotoLikePicture(Image::Depth depth)
{
    Image image = Image::Allocate(Width, Height, depth);
    for (int y = 0; y < Height; ++y) {
        for (int x = 0; x < Width; ++x) {
            const Color color = ColorAt(x, y);
            for (int channel = 0; channel < 3; ++channel)
                Write(image, x, y, channel, color[static_cast<std::size_t>(channel)]);
            Write(image, x, y, 3, std::min(1.0, static_cast<double>(x % 50) / 30));
        }
    }
    return image;
}

} // namespace LumetraTests
