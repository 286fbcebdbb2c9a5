// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestPictures.h"

#include "image/Resize.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <utility>

namespace LumetraHost {
namespace {

Image MakeColumns(Image::Depth depth, unsigned left, unsigned right, unsigned rightAlpha)
{
    Image image = Image::Allocate(2, 2, depth);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 2; ++x)
            for (int c = 0; c < 4; ++c) {
                const unsigned colour = x == 0 ? left : right;
                const unsigned alpha = x == 0 ? GetWhite(image) : rightAlpha;
                const unsigned value = c == 3 ? alpha : colour;
                if (depth == Image::Depth::Bits16)
                    image.Row16(y)[4 * x + c] = static_cast<std::uint16_t>(value);
                else
                    image.Row(y)[4 * x + c] = static_cast<std::uint8_t>(value);
            }
    return image;
}

TEST(Resize, averagesAreasWhenItShrinks)
{
    for (const auto depth : {Image::Depth::Bits8, Image::Depth::Bits16}) {
        const Image source =
            MakeColumns(depth, 40, 80, depth == Image::Depth::Bits16 ? 65535 : 255);
        const Image result = Resize(source, {0, 0, 2, 2}, 1, 1, ResizeQuality::Fine);
        EXPECT_EQ(GetChannel(result, 0, 0, 0), 60u);
        EXPECT_EQ(GetChannel(result, 0, 0, 3), GetWhite(source));
    }
}

/// Soft colours, opaque.
Image MakeSoftPicture(int width, int height, Image::Depth depth)
{
    Image image = Image::Allocate(width, height, depth);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (int c = 0; c < 4; ++c) {
                const double colour = 0.5 + 0.4 * std::sin(0.02 * x + 0.03 * y + c);
                const double value = (c == 3 ? 1 : colour) * GetWhite(image);
                if (depth == Image::Depth::Bits16)
                    image.Row16(y)[4 * x + c] = static_cast<std::uint16_t>(value + 0.5);
                else
                    image.Row(y)[4 * x + c] = static_cast<std::uint8_t>(value + 0.5);
            }
    return image;
}

/// The average over the pixel's area of the source, in double precision.
double AverageArea(const Image& source, int width, int height, int x, int y, int channel)
{
    const double scaleX = double(source.GetWidth()) / width;
    const double scaleY = double(source.GetHeight()) / height;
    double sum = 0;
    for (int row = int(y * scaleY); row < std::ceil((y + 1) * scaleY); ++row)
        for (int column = int(x * scaleX); column < std::ceil((x + 1) * scaleX); ++column)
            sum +=
                GetChannel(source, column, row, channel) *
                (std::min(column + 1.0, (x + 1) * scaleX) - std::max(double(column), x * scaleX)) *
                (std::min(row + 1.0, (y + 1) * scaleY) - std::max(double(row), y * scaleY));
    return sum / (scaleX * scaleY);
}

/// The largest distance from the averages, in steps of 8 bits.
double GetError(const Image& source, int width, int height, ResizeQuality quality)
{
    const PixelRect whole{0, 0, source.GetWidth(), source.GetHeight()};
    const Image result = Resize(source, whole, width, height, quality);
    double error = 0;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (int c = 0; c < 4; ++c)
                error = std::max(error, std::abs(GetChannel(result, x, y, c) -
                                                 AverageArea(source, width, height, x, y, c)));
    return error * 255 / GetWhite(source);
}

// Whole numbers divide the sides of some: those are shrunk in two steps for the screen. These
// colours change by 57 steps from one pixel to the next.
TEST(Resize, staysInPlaceHoweverItAveragesAreas)
{
    for (const auto depth : {Image::Depth::Bits8, Image::Depth::Bits16})
        for (const auto& [width, height] : {std::pair(480, 320), {483, 323}, {478, 321}}) {
            SCOPED_TRACE(testing::Message() << width << " x " << height);
            const Image source = MakeSoftPicture(width, height, depth);
            EXPECT_LT(GetError(source, 25, 17, ResizeQuality::Fine), 0.501);
            EXPECT_LT(GetError(source, 25, 17, ResizeQuality::Screen), 3.0);
        }
}

TEST(Resize, doesNotBleedTheColoursOfTransparentPixels)
{
    const Image source = MakeColumns(Image::Depth::Bits8, 40, 200, 0);
    const Image result = Resize(source, {0, 0, 2, 2}, 1, 1, ResizeQuality::Fine);
    EXPECT_EQ(GetChannel(result, 0, 0, 1), 40u);
    EXPECT_NEAR(GetChannel(result, 0, 0, 3), 128, 1);
}

// An average of so many pixels is opaque when one of them is not.
TEST(Resize, takesHalfAStepAtMostFromTheColourOfOneTransparentPixelOfMany)
{
    Image source = MakeSoftPicture(64, 64, Image::Depth::Bits8);
    const Image before = Resize(source, {0, 0, 64, 64}, 2, 2, ResizeQuality::Fine);
    const std::uint8_t pixel[] = {255, 0, 255, 0};
    std::copy(std::begin(pixel), std::end(pixel), source.Row(20) + 4 * 20);
    const Image after = Resize(source, {0, 0, 64, 64}, 2, 2, ResizeQuality::Fine);
    for (int i = 0; i < 16; ++i)
        EXPECT_NEAR(GetChannel(after, i / 4 % 2, i / 8, i % 4),
                    GetChannel(before, i / 4 % 2, i / 8, i % 4), 1);
}

TEST(Resize, copiesAPartOfTheSameSize)
{
    const Image source = MakeRandomPicture(20, 10, Image::Depth::Bits16, 2);
    const Image result = Resize(source, {5, 3, 7, 4}, 7, 4, ResizeQuality::Fine);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 7; ++x)
            for (int c = 0; c < 4; ++c)
                EXPECT_EQ(GetChannel(result, x, y, c), GetChannel(source, x + 5, y + 3, c));
}

TEST(Resize, enlarges)
{
    const Image source = MakeColumns(Image::Depth::Bits8, 100, 100, 255);
    for (const auto quality : {ResizeQuality::Fine, ResizeQuality::Screen, ResizeQuality::Fast}) {
        const Image result = Resize(source, {0, 0, 2, 2}, 9, 5, quality);
        EXPECT_EQ(result.GetWidth(), 9);
        EXPECT_EQ(result.GetHeight(), 5);
        EXPECT_EQ(GetChannel(result, 4, 2, 0), 100u);
    }
}

} // namespace
} // namespace LumetraHost
