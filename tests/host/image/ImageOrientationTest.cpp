// SPDX-License-Identifier: GPL-2.0-or-later
#include "image/ImageOrientation.h"

#include "host/photo/PhotoSamples.h"

#include <gtest/gtest.h>

using namespace LumetraHost;
using namespace LumetraTest;

namespace {

struct Case
{
    int orientation;
    std::array<int, 6>
        stored; // what a camera stores of the upright 1 2 3 / 4 5 6 or 1 2 / 3 4 / 5 6
    const char* upright;
};

struct ImageOrientationTest : testing::TestWithParam<Case>
{
};

/// The stored pictures follow the standard's words: for 6, say, the stored first row is the right
/// side and the stored first column the top of the scene.
const Case Cases[] = {
    {1, {1, 2, 3, 4, 5, 6}, "3x2: 1 2 3 4 5 6"}, // row 0 top, column 0 left
    {2, {3, 2, 1, 6, 5, 4}, "3x2: 1 2 3 4 5 6"}, // top, right
    {3, {6, 5, 4, 3, 2, 1}, "3x2: 1 2 3 4 5 6"}, // bottom, right
    {4, {4, 5, 6, 1, 2, 3}, "3x2: 1 2 3 4 5 6"}, // bottom, left
    {5, {1, 3, 5, 2, 4, 6}, "2x3: 1 2 3 4 5 6"}, // left, top
    {6, {2, 4, 6, 1, 3, 5}, "2x3: 1 2 3 4 5 6"}, // right, top
    {7, {6, 4, 2, 5, 3, 1}, "2x3: 1 2 3 4 5 6"}, // right, bottom
    {8, {5, 3, 1, 6, 4, 2}, "2x3: 1 2 3 4 5 6"}, // left, bottom
};

} // namespace

TEST_P(ImageOrientationTest, turnsStoredPictureUpright)
{
    const Image stored = MakeMarked(GetParam().stored, Image::Depth::Bits8);

    const Image upright = TurnUpright(stored, GetParam().orientation);

    EXPECT_EQ(DescribeRed(upright), GetParam().upright);
}

TEST_P(ImageOrientationTest, turnsSixteenBitPictureUpright)
{
    std::array<int, 6> stored = GetParam().stored;
    for (int& value : stored)
        value += 1000;

    const Image upright =
        TurnUpright(MakeMarked(stored, Image::Depth::Bits16), GetParam().orientation);

    EXPECT_EQ(DescribeRed(upright).substr(4), " 1001 1002 1003 1004 1005 1006");
}

TEST_P(ImageOrientationTest, pixelsKeepTheirChannelsAtSizesBeyondOneBlock)
{
    const Image stored = MakePattern(97, 65, Image::Depth::Bits8, Alpha::Varying);

    // Turning by the opposite orientation brings everything back.
    constexpr int opposite[] = {1, 2, 3, 4, 5, 8, 7, 6};
    const int orientation = GetParam().orientation;
    const Image back = TurnUpright(TurnUpright(stored, orientation), opposite[orientation - 1]);

    EXPECT_TRUE(HaveSamePixels(back, stored));
}

INSTANTIATE_TEST_SUITE_P(AllOrientations, ImageOrientationTest, testing::ValuesIn(Cases),
                         [](const auto& test) {
                             return "orientation" + std::to_string(test.param.orientation);
                         });

TEST(ImageOrientation, unknownNumbersLeaveThePictureAsItIs)
{
    const Image image = MakePattern(3, 2, Image::Depth::Bits8);

    for (int orientation : {-1, 0, 1, 9, 274})
        EXPECT_TRUE(TurnUpright(image, orientation).SharesPixelsWith(image)) << orientation;
}
