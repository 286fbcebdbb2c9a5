// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestPictures.h"

#include "engine/Resize.h"

#include <gtest/gtest.h>

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

TEST(Resize, doesNotBleedTheColoursOfTransparentPixels)
{
    const Image source = MakeColumns(Image::Depth::Bits8, 40, 200, 0);
    const Image result = Resize(source, {0, 0, 2, 2}, 1, 1, ResizeQuality::Fine);
    EXPECT_EQ(GetChannel(result, 0, 0, 1), 40u);
    EXPECT_NEAR(GetChannel(result, 0, 0, 3), 128, 1);
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
    for (const auto quality : {ResizeQuality::Fine, ResizeQuality::Fast}) {
        const Image result = Resize(source, {0, 0, 2, 2}, 9, 5, quality);
        EXPECT_EQ(result.GetWidth(), 9);
        EXPECT_EQ(result.GetHeight(), 5);
        EXPECT_EQ(GetChannel(result, 4, 2, 0), 100u);
    }
}

} // namespace
} // namespace LumetraHost
