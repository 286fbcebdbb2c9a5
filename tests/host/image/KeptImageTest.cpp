// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestPictures.h"

#include "image/ImageOrientation.h"
#include "image/KeptImage.h"
#include "image/Overview.h"
#include "image/Resize.h"

#include "host/photo/PhotoSamples.h"

#include <gtest/gtest.h>

#include <utility>

namespace LumetraHost {
namespace {

using LumetraTest::Alpha;
using LumetraTest::MakePattern;

constexpr Image::Depth Depths[] = {Image::Depth::Bits8, Image::Depth::Bits16};

/// Leaves the picture as it is.
KeptImage PackCopy(const Image& image)
{
    return KeptImage::Pack(image.Clone());
}

TEST(KeptImage, takesThreeChannelsPerPixelWhereNothingShinesThrough)
{
    const KeptImage eight = PackCopy(MakePattern(640, 50, Image::Depth::Bits8));
    EXPECT_TRUE(eight.IsPacked());
    EXPECT_EQ(eight.GetBytesPerPixel(), 3u);
    EXPECT_LE(eight.GetByteCount(), (3u * 640 + 64) * 50);
    const KeptImage sixteen = PackCopy(MakePattern(640, 50, Image::Depth::Bits16));
    EXPECT_EQ(sixteen.GetBytesPerPixel(), 6u);
    EXPECT_LE(sixteen.GetByteCount(), (6u * 640 + 64) * 50);
}

TEST(KeptImage, givesThePixelsBack)
{
    for (const auto depth : Depths) {
        SCOPED_TRACE(testing::PrintToString(depth));
        for (const int width : {1, 2, 21, 64, 203}) {
            const Image image = MakePattern(width, 37, depth);
            EXPECT_TRUE(HaveSamePixels(PackCopy(image).ToImage(), image)) << width;
        }
    }
}

TEST(KeptImage, leavesPicturesWithTransparencyAsTheyAre)
{
    const Image image = MakePattern(30, 20, Image::Depth::Bits8, Alpha::Varying);
    const KeptImage kept = KeptImage::Pack(image);
    EXPECT_FALSE(kept.IsPacked());
    EXPECT_FALSE(kept.IsOpaque());
    EXPECT_EQ(kept.GetBytesPerPixel(), 4u);
    EXPECT_TRUE(kept.ToImage().SharesPixelsWith(image));
}

TEST(KeptImage, packsWithoutTouchingAPictureThatOthersShare)
{
    const Image image = MakePattern(70, 30, Image::Depth::Bits8);
    const Image before = image.Clone();
    const KeptImage kept = KeptImage::Pack(image);
    EXPECT_TRUE(kept.IsPacked());
    EXPECT_TRUE(HaveSamePixels(image, before));
    EXPECT_TRUE(HaveSamePixels(kept.ToImage(), before));
}

TEST(KeptImage, isTheSameOnlyAsItsCopies)
{
    const Image image = MakePattern(20, 10, Image::Depth::Bits8);
    const KeptImage packed = PackCopy(image);
    EXPECT_TRUE(packed.SharesPixelsWith(KeptImage(packed)));
    EXPECT_FALSE(packed.SharesPixelsWith(PackCopy(image)));
    EXPECT_FALSE(packed.SharesPixelsWith(image));
    EXPECT_FALSE(packed.SharesPixelsWith({}));
    EXPECT_TRUE(KeptImage(image).SharesPixelsWith(image));
    EXPECT_TRUE(KeptImage().SharesPixelsWith(KeptImage(Image())));
    EXPECT_TRUE(KeptImage(Image()).IsNull());
    EXPECT_TRUE(KeptImage::Pack(Image()).IsNull());
}

TEST(KeptImage, cutsTheSamePartAsAPictureThatIsNotPacked)
{
    for (const auto depth : Depths) {
        const Image image = MakePattern(61, 47, depth);
        for (const PixelRect part : {PixelRect{0, 0, 61, 47}, {60, 46, 1, 1}, {7, 5, 40, 30}})
            EXPECT_TRUE(HaveSamePixels(PackCopy(image).Cut(part), KeptImage(image).Cut(part)));
    }
}

TEST(KeptImage, copiesRowsAtTheDepthThatIsWanted)
{
    const Image image = MakePattern(33, 20, Image::Depth::Bits8);
    const KeptImage packed = PackCopy(image);
    for (const auto depth : Depths) {
        Image expected = Image::Allocate(33, 9, depth);
        Image found = Image::Allocate(33, 9, depth);
        KeptImage(image).CopyRows(11, 7, expected, 2);
        packed.CopyRows(11, 7, found, 2);
        EXPECT_TRUE(HaveSamePixels(found, expected)) << testing::PrintToString(depth);
    }
}

TEST(KeptImage, isPutTogetherFromPartsInAnyOrder)
{
    const Image image = MakePattern(45, 31, Image::Depth::Bits8);
    for (int orientation = 1; orientation <= 8; ++orientation) {
        const Image upright = TurnUpright(image, orientation);
        KeptImage packed =
            KeptImage::AllocatePacked(upright.GetWidth(), upright.GetHeight(), Image::Depth::Bits8);
        for (const int first : {24, 0, 16, 8}) {
            const int count = std::min(8, 31 - first);
            const Image rows = KeptImage(image).Cut({0, first, 45, count});
            const PixelRect place = FindUprightPlace(45, 31, first, count, orientation);
            packed.Store(TurnUpright(rows, orientation), place.x, place.y);
        }
        EXPECT_TRUE(HaveSamePixels(packed.ToImage(), upright)) << orientation;
    }
}

TEST(KeptImage, isResizedToTheSamePixelsWhetherItIsPackedOrNot)
{
    constexpr std::pair<int, int> sizes[] = {{301, 203}, {150, 101}, {100, 68},  {75, 51}, {43, 29},
                                             {20, 14},   {1, 1},     {400, 300}, {320, 90}};
    for (const auto depth : Depths) {
        const Image image = MakePattern(301, 203, depth);
        const KeptImage packed = PackCopy(image);
        for (const auto quality : {ResizeQuality::Fast, ResizeQuality::Screen, ResizeQuality::Fine})
            for (const PixelRect area :
                 {PixelRect{0, 0, 301, 203}, {1, 3, 300, 200}, {201, 103, 100, 100}})
                for (const auto& [width, height] : sizes)
                    EXPECT_TRUE(HaveSamePixels(Resize(packed, area, width, height, quality),
                                               Resize(image, area, width, height, quality)))
                        << testing::PrintToString(depth) << " quality " << int(quality) << " from "
                        << area.x << " to " << width << " x " << height;
    }
}

/// Blocks of more than 256 values are summed in another way.
TEST(KeptImage, isShrunkByLargeFactorsToTheSamePixels)
{
    for (const auto depth : Depths) {
        const Image image = MakePattern(680, 680, depth);
        const PixelRect whole{0, 0, 680, 680};
        for (const int side : {40, 20, 2, 1})
            EXPECT_TRUE(
                HaveSamePixels(Resize(PackCopy(image), whole, side, side, ResizeQuality::Fine),
                               Resize(image, whole, side, side, ResizeQuality::Fine)))
                << testing::PrintToString(depth) << " " << side;
    }
}

TEST(KeptImage, hasTheSameOverviewWhetherItIsPackedOrNot)
{
    const Image image = MakePattern(601, 403, Image::Depth::Bits8);
    const PixelRect whole{0, 0, 601, 403};
    EXPECT_TRUE(
        HaveSamePixels(Overview(PackCopy(image), 5e4).Resize(whole, 60, 40, ResizeQuality::Screen),
                       Overview(image, 5e4).Resize(whole, 60, 40, ResizeQuality::Screen)));
}

} // namespace
} // namespace LumetraHost
