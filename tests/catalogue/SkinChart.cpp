// SPDX-License-Identifier: GPL-2.0-or-later
#include "SkinChart.h"

#include <cmath>

namespace LumetraTests {
namespace {

using LumetraHost::Image;

constexpr int PatchSide = 16;
constexpr int Width = PatchSide * static_cast<int>(SkinChart::Tones.size());
constexpr int Grey = 119; // middle grey, 18 per cent of the light
constexpr int Margin = 3;

} // namespace

SkinChart::SkinChart() : m_image(Image::Allocate(3 * Width, 3 * Width, Image::Depth::Bits8))
{
    for (int y = 0; y < m_image.GetHeight(); ++y) {
        for (int x = 0; x < m_image.GetWidth(); ++x) {
            const bool inside = x >= Width && x < 2 * Width && y >= Width && y < 2 * Width;
            const auto patch = static_cast<std::size_t>((x - Width) / PatchSide);
            std::uint8_t* const pixel = m_image.Row(y) + 4 * x;
            for (std::size_t channel = 0; channel < 3; ++channel)
                pixel[channel] = static_cast<std::uint8_t>(inside ? Tones[patch][channel] : Grey);
            pixel[3] = 255;
        }
    }
}

SkinChart::Color SkinChart::ColorIn(const Image& look, std::size_t tone)
{
    const int left = Width + PatchSide * static_cast<int>(tone);
    const int top = look.GetHeight() / 2 - PatchSide / 2;
    Color sum{};
    int count = 0;
    for (int y = top + Margin; y < top + PatchSide - Margin; ++y) {
        for (int x = left + Margin; x < left + PatchSide - Margin; ++x, ++count)
            for (std::size_t channel = 0; channel < 3; ++channel)
                sum[channel] += look.Row(y)[4 * static_cast<std::size_t>(x) + channel];
    }
    for (int& channel : sum)
        channel = (channel + count / 2) / count;
    return sum;
}

double SkinChart::HueIn(const Image& look, std::size_t tone)
{
    const Color color = ColorIn(look, tone);
    const double opposed = std::sqrt(3.0) * (color[1] - color[2]);
    constexpr double degrees = 180 / 3.14159265358979323846;
    return std::atan2(opposed, 2.0 * color[0] - color[1] - color[2]) * degrees;
}

std::string SkinChart::Describe(const Image& look, std::size_t tone)
{
    const Color color = ColorIn(look, tone);
    return "tone " + std::to_string(tone) + ": " + std::to_string(color[0]) + " " +
           std::to_string(color[1]) + " " + std::to_string(color[2]);
}

} // namespace LumetraTests
