// SPDX-License-Identifier: GPL-2.0-or-later
#include "workspace/DisplayConverter.h"

#include "Zorvik/Proc/Frame.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace LumetraHost {
namespace {

using Zorvik::Proc::Frame;
using Zorvik::Proc::PixelFormat;

TEST(DisplayConverter, handsBytesOnAsTheyAre)
{
    const Frame frame = Frame::Allocate(3, 2, PixelFormat::Rgba8Premultiplied);
    EXPECT_EQ(DisplayConverter().ToDisplay(frame).pixels, frame.pixels);
}

TEST(DisplayConverter, keepsANullFrameNull)
{
    EXPECT_TRUE(DisplayConverter().ToDisplay(Frame()).IsNull());
}

TEST(DisplayConverter, roundsFloatsToBytes)
{
    Frame frame = Frame::Allocate(2, 2, PixelFormat::RgbaFloatPremultiplied);
    frame.pixelAspect = 1.5;
    auto* const row = reinterpret_cast<float*>(frame.pixels.get() + frame.stride);
    const float values[] = {-1.0f, 0.0f,     0.4999f / 255, 0.5001f / 255,
                            1.0f,  INFINITY, std::nanf(""), 100.0f / 255};
    std::copy(std::begin(values), std::end(values), row);

    const Frame bytes = DisplayConverter().ToDisplay(frame);

    EXPECT_EQ(bytes.format, PixelFormat::Rgba8Premultiplied);
    EXPECT_EQ(bytes.pixelAspect, 1.5);
    const int expected[] = {0, 0, 0, 1, 255, 255, 0, 100};
    for (std::size_t i = 0; i < 8; ++i)
        EXPECT_EQ(bytes.pixels[bytes.stride + i], expected[i]) << i;
}

} // namespace
} // namespace LumetraHost
