// SPDX-License-Identifier: GPL-2.0-or-later
#include "workspace/DisplayConverter.h"

#include "host/drawer/view/DisplaySamples.h"

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

TEST(DisplayConverter, showsTheMonitorsColours)
{
    const QByteArray monitor = LumetraTest::MakeStrangeMonitor();
    Frame frame = Frame::Allocate(1, 2, PixelFormat::RgbaFloatPremultiplied);
    const float colour[] = {0.8f, 0.4f, 0.2f, 1.0f};
    std::copy(std::begin(colour), std::end(colour),
              reinterpret_cast<float*>(frame.pixels.get() + frame.stride));
    DisplayConverter converter;
    converter.SetDisplay(DisplayTransform::Make(monitor, "monitor"));

    const Frame shown = converter.ToDisplay(frame);

    const auto expected = LumetraTest::MonitorOracle(monitor).Convert({0.8, 0.4, 0.2});
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_NEAR(shown.pixels[shown.stride + i], 255 * expected[i], 1.5);
    EXPECT_EQ(shown.pixels[shown.stride + 3], 255);
}

} // namespace
} // namespace LumetraHost
