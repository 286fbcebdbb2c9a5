// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/view/DisplayTransform.h"

#include "host/drawer/view/DisplaySamples.h"
#include "host/engine/TestPictures.h"
#include "host/engine/TestSpaces.h"

#include "photo/colour/ColorConversion.h"

#include "Zorvik/Exception.h"

#include <gmock/gmock.h>

#include <cmath>

using namespace LumetraTest;
using testing::HasSubstr;
using testing::StartsWith;

namespace LumetraHost {
namespace {

/// The largest distance from the colour library's result, in 8-bit steps.
double FindLargestError(const Image& shown, const Image& picture, const QByteArray& monitor)
{
    const MonitorOracle oracle(monitor, picture.GetSpace() ? picture.GetSpace()->GetProfile()
                                                           : QByteArray());
    const bool isDeep = picture.GetDepth() == Image::Depth::Bits16;
    double largest = 0;
    for (int y = 0; y < picture.GetHeight(); ++y) {
        for (int x = 0; x < picture.GetWidth(); ++x) {
            const int at = Image::Channels * x;
            std::array<double, 3> colour{};
            for (int i = 0; i < 3; ++i)
                colour[static_cast<std::size_t>(i)] =
                    isDeep ? picture.Row16(y)[at + i] / 65535.0 : picture.Row(y)[at + i] / 255.0;
            const auto expected = oracle.Convert(colour);
            for (int i = 0; i < 3; ++i)
                largest = std::max(largest, std::abs(255 * expected[static_cast<std::size_t>(i)] -
                                                     shown.Row(y)[at + i]));
        }
    }
    return largest;
}

std::string MessageOf(const QByteArray& profile)
{
    try {
        DisplayTransform::Make(profile, "monitor.icc");
    } catch (const Zorvik::Exception& error) {
        return error.what();
    }
    return {};
}

TEST(DisplayTransform, showsPicturesAsTheColourLibrarySays)
{
    const QByteArray monitor = MakeStrangeMonitor();
    const Image picture = MakeRandomPicture(150, 200, Image::Depth::Bits8, 5);

    const Image shown = DisplayTransform::Make(monitor, "monitor.icc")->Apply(picture);

    ASSERT_EQ(shown.GetDepth(), Image::Depth::Bits8);
    EXPECT_LE(FindLargestError(shown, picture, monitor), 1.5);
    EXPECT_FALSE(HaveSamePixels(shown, picture));
    EXPECT_EQ(shown.Row(77)[4 * 33 + 3], picture.Row(77)[4 * 33 + 3]) << "alpha stays";
}

TEST(DisplayTransform, makesEightBitsOfSixteen)
{
    const QByteArray monitor = ColorConversion::GetDisplayP3Profile();
    const Image picture = MakeRandomPicture(70, 90, Image::Depth::Bits16, 6);

    const Image shown = DisplayTransform::Make(monitor, "monitor.icc")->Apply(picture);

    ASSERT_EQ(shown.GetDepth(), Image::Depth::Bits8);
    EXPECT_LE(FindLargestError(shown, picture, monitor), 1.5);
    EXPECT_EQ(shown.Row(3)[4 * 5 + 3], std::lround(picture.Row16(3)[4 * 5 + 3] / 257.0));
}

TEST(DisplayTransform, showsPicturesOfEverySpaceAsTheColourLibrarySays)
{
    const QByteArray monitor = MakeStrangeMonitor();
    const auto transform = DisplayTransform::Make(monitor, "monitor.icc");
    for (int round = 0; round < 2; ++round)
        for (const TestSpace& space : GetTestSpaces())
            for (const Image::Depth depth : {Image::Depth::Bits8, Image::Depth::Bits16}) {
                const Image picture = InSpace(MakeRandomPicture(70, 90, depth, 5), space.space);

                const Image shown = transform->Apply(picture);

                EXPECT_FALSE(shown.GetSpace());
                EXPECT_LE(FindLargestError(shown, picture, monitor), 1.5) << space.name;
            }
}

TEST(DisplayTransform, leavesColoursAloneWhereTheMonitorHasTheSpaceOfThePhoto)
{
    const TestSpace& p3 = GetTestSpaces().front();
    const auto transform = DisplayTransform::Make(p3.space->GetProfile(), "monitor.icc");
    for (const Image::Depth depth : {Image::Depth::Bits8, Image::Depth::Bits16}) {
        const Image picture = InSpace(MakeRandomPicture(70, 90, depth, 5), p3.space);

        const Image shown = transform->Apply(picture);

        for (int y = 0; y < 90; ++y)
            for (int x = 0; x < 70; ++x)
                for (int c = 0; c < 3; ++c)
                    ASSERT_NEAR(shown.Row(y)[4 * x + c],
                                255.0 * GetChannel(picture, x, y, c) / GetWhite(picture), 1.01);
    }
}

TEST(DisplayTransform, usesMemoryAgainThatNobodyHolds)
{
    const auto transform = DisplayTransform::Make(MakeStrangeMonitor(), "monitor.icc");
    const Image picture = MakeRandomPicture(20, 10, Image::Depth::Bits8, 7);
    const Image expected = transform->Apply(picture);
    Image spare =
        InSpace(Image::Allocate(20, 10, Image::Depth::Bits8), GetTestSpaces().front().space);
    const auto* const pixels = spare.Row(0);

    const Image shown = transform->Apply(picture, std::move(spare));

    EXPECT_EQ(shown.Row(0), pixels);
    EXPECT_FALSE(shown.GetSpace());
    EXPECT_TRUE(HaveSamePixels(shown, expected));
}

TEST(DisplayTransform, seesThroughPremultipliedAlpha)
{
    const QByteArray monitor = MakeStrangeMonitor();
    const std::uint8_t source[] = {100, 60, 20, 128, 0, 0, 0, 0};
    std::uint8_t target[8] = {};

    DisplayTransform::Make(monitor, "monitor.icc")->ApplyPremultiplied(source, 8, target, 8, 2, 1);

    const double alpha = 128 / 255.0;
    const auto expected = MonitorOracle(monitor).Convert(
        {100 / 255.0 / alpha, 60 / 255.0 / alpha, 20 / 255.0 / alpha});
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_NEAR(target[i], 255 * alpha * expected[i], 1.5);
    EXPECT_EQ(target[3], 128);
    EXPECT_EQ(target[7], 0);
}

TEST(DisplayTransform, isNotNeededForAnSrgbMonitor)
{
    EXPECT_EQ(DisplayTransform::Make(ColorConversion::GetSrgbProfile(), "monitor.icc"), nullptr);
}

TEST(DisplayTransform, keepsANullPictureNull)
{
    const auto transform = DisplayTransform::Make(MakeStrangeMonitor(), "monitor.icc");
    EXPECT_TRUE(transform->Apply(Image()).IsNull());
}

TEST(DisplayTransform, refusesWhatIsNoMonitorsProfile)
{
    EXPECT_THAT(MessageOf("no profile"),
                StartsWith("monitor.icc: expected the ICC profile of an RGB monitor"));
    EXPECT_THAT(MessageOf(QByteArray()), StartsWith("monitor.icc: expected"));
    EXPECT_THAT(MessageOf(MakeStrangeMonitor().left(300)), StartsWith("monitor.icc: expected"));
    EXPECT_THAT(MessageOf(MakeGreyProfile()), HasSubstr("colour space"));
}

} // namespace
} // namespace LumetraHost
