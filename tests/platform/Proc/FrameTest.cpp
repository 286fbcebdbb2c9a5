// SPDX-License-Identifier: MIT
#include "Zorvik/Proc/Frame.h"

#include "Zorvik/Exception.h"
#include "Zorvik/Proc/Color.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

using namespace Zorvik::Proc;

TEST(Frame, aDefaultMadeFrameIsNull)
{
    const Frame frame;
    EXPECT_TRUE(frame.IsNull());
    EXPECT_EQ(frame.width, 0);
    EXPECT_EQ(frame.stride, 0U);
    EXPECT_EQ(frame.format, PixelFormat::Rgba8Premultiplied);
    EXPECT_EQ(frame.pixelAspect, 1.0);
}

TEST(Frame, allocatesZeroedRowsThatBeginAtMultiplesOfSixteen)
{
    const Frame frame = Frame::Allocate(5, 3, PixelFormat::Rgba8Premultiplied);
    EXPECT_FALSE(frame.IsNull());
    EXPECT_EQ(frame.width, 5);
    EXPECT_EQ(frame.height, 3);
    EXPECT_EQ(frame.stride, 32U);
    EXPECT_TRUE(std::all_of(frame.pixels.get(), frame.pixels.get() + frame.stride * 3,
                            [](std::uint8_t byte) { return byte == 0; }));
}

TEST(Frame, allocatesFourFloatsPerPixel)
{
    const Frame frame = Frame::Allocate(5, 1, PixelFormat::RgbaFloatPremultiplied);
    EXPECT_EQ(frame.stride, 80U);
    EXPECT_EQ(frame.format, PixelFormat::RgbaFloatPremultiplied);
}

TEST(Frame, copiesShareTheBuffer)
{
    const Frame frame = Frame::Allocate(1, 1, PixelFormat::Rgba8Premultiplied);
    const Frame copy = frame;
    EXPECT_EQ(copy.pixels.get(), frame.pixels.get());
    EXPECT_EQ(frame.pixels.use_count(), 2);
}

TEST(Frame, refusesSizesBelowOnePixel)
{
    for (const auto& [width, height] : {std::pair(0, 1), std::pair(1, 0), std::pair(-3, 4)}) {
        try {
            Frame::Allocate(width, height, PixelFormat::Rgba8Premultiplied);
            FAIL() << width << " x " << height;
        } catch (const Zorvik::Exception& error) {
            EXPECT_EQ(error.GetDescription(), "frame of " + std::to_string(width) + " x " +
                                                  std::to_string(height) +
                                                  " pixels: expected at least 1 x 1");
        }
    }
}

TEST(Frame, refusesSizesThatAreTooLarge)
{
    constexpr int largest = std::numeric_limits<int>::max();
    EXPECT_THROW(Frame::Allocate(largest, largest, PixelFormat::RgbaFloatPremultiplied),
                 Zorvik::Exception);
    EXPECT_THROW(Frame::Allocate(1, largest, PixelFormat::Rgba8Premultiplied), Zorvik::Exception);
    // 4 x 134217728 rows of 16 bytes are one byte over the limit.
    try {
        Frame::Allocate(4, 134217728, PixelFormat::Rgba8Premultiplied);
        FAIL();
    } catch (const Zorvik::Exception& error) {
        EXPECT_EQ(error.GetDescription(),
                  "frame of 4 x 134217728 pixels: expected at most 2147483647 bytes");
    }
}

TEST(Color, isOpaqueBlackUnlessGiven)
{
    const Color black;
    EXPECT_EQ(black.red, 0);
    EXPECT_EQ(black.alpha, 255);
    const Color color(18, 33, 52, 255);
    EXPECT_EQ(color.green, 33);
    EXPECT_EQ(color.blue, 52);
}
