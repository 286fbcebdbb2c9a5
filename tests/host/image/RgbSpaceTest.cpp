// SPDX-License-Identifier: GPL-2.0-or-later
#include "image/RgbSpace.h"

#include "image/Image.h"
#include "image/ImageOrientation.h"
#include "image/Resize.h"
#include "image/Srgb.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

namespace LumetraHost {
namespace {

constexpr RgbSpace::Matrix Identity{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};

std::shared_ptr<const RgbSpace> MakeSpace(const RgbSpace::Curve& curve)
{
    return std::make_shared<const RgbSpace>(std::array<RgbSpace::Curve, 3>{curve, curve, curve},
                                            Identity, QByteArray("profile"), "A Space");
}

RgbSpace::Curve MakeGamma(double gamma)
{
    return [gamma](double encoded) { return std::pow(encoded, gamma); };
}

/// The value that straight pieces between the nodes give.
double LookUp(const float* table, double linear)
{
    const double place = std::pow(linear, 0.25) * RootGrid::PiecesOfUnit;
    const int piece = std::min(static_cast<int>(place), RootGrid::Pieces - 1);
    return table[piece] + (place - piece) * (table[piece + 1] - table[piece]);
}

TEST(RgbSpace, isKeptByEverythingThatMakesAPictureOfAPicture)
{
    const auto space = MakeSpace(MakeGamma(2.2));
    Image picture = Image::Allocate(40, 20, Image::Depth::Bits8);
    picture.SetSpace(space);

    EXPECT_EQ(picture.Clone().GetSpace(), space);
    EXPECT_EQ(AllocateLike(picture, {}).GetSpace(), space);
    EXPECT_EQ(Resize(picture, {4, 4, 30, 10}, 15, 5, ResizeQuality::Fine).GetSpace(), space);
    for (int orientation = 1; orientation <= 8; ++orientation)
        EXPECT_EQ(TurnUpright(picture, orientation).GetSpace(), space) << orientation;
}

TEST(RgbSpace, ofARecycledPictureIsThatOfTheNewOne)
{
    const Image srgb = Image::Allocate(40, 20, Image::Depth::Bits8);
    Image wide = Image::Allocate(40, 20, Image::Depth::Bits8);
    wide.SetSpace(MakeSpace(MakeGamma(2.2)));

    EXPECT_FALSE(AllocateLike(srgb, std::move(wide)).GetSpace());
}

TEST(RgbSpace, tablesFollowTheCurveWithinAFractionOfASixteenBitStep)
{
    for (const double gamma : {1.8, 563.0 / 256.0, 2.6}) {
        const auto space = MakeSpace(MakeGamma(gamma));
        for (int value = 1; value <= 65535; value += value < 2000 ? 1 : 13) {
            const double encoded = value / 65535.0;
            const double light = LookUp(space->GetDecoding(1), SrgbToLinear(encoded));
            ASSERT_NEAR(std::pow(light, 1 / gamma), encoded, 0.1 / 65535) << gamma << " " << value;
            const double back = LookUp(space->GetEncoding(1), std::pow(encoded, gamma));
            ASSERT_NEAR(LinearToSrgb(back), encoded, 0.1 / 65535) << gamma << " " << value;
        }
    }
}

TEST(RgbSpace, tablesGoOnBeyondWhite)
{
    const auto space = MakeSpace(MakeGamma(2.2));

    EXPECT_NEAR(LookUp(space->GetDecoding(0), SrgbToLinear(1.5)), std::pow(1.5, 2.2), 1e-4);
    EXPECT_NEAR(LinearToSrgb(LookUp(space->GetEncoding(0), std::pow(1.5, 2.2))), 1.5, 1e-4);
}

TEST(RgbSpace, takesACurveThatIsThatOfSrgbForIt)
{
    EXPECT_TRUE(MakeSpace(SrgbToLinear)->HasSrgbCurves());
    EXPECT_FALSE(MakeSpace(MakeGamma(2.2))->HasSrgbCurves());
}

TEST(RgbSpace, knowsWhetherItsCurvesKeepEveryValue)
{
    const auto level = MakeSpace([](double encoded) {
        return encoded < 0.004 ? 0.0 : std::pow((encoded - 0.004) / 0.996, 2.2);
    });

    EXPECT_TRUE(MakeSpace(MakeGamma(1.8))->KeepsValues(16));
    EXPECT_FALSE(level->KeepsValues(16));
}

} // namespace
} // namespace LumetraHost
