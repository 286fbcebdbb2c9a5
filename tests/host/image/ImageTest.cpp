// SPDX-License-Identifier: GPL-2.0-or-later
#include "image/Image.h"

#include "Zorvik/Exception.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace LumetraHost {
namespace {

class ImageOfDepth : public testing::TestWithParam<Image::Depth>
{
protected:
    static constexpr int Height = 50; // several bands, the last one shorter

    static void SetAlpha(Image& image, int x, int y, std::uint16_t alpha)
    {
        if (image.GetDepth() == Image::Depth::Bits16)
            image.Row16(y)[4 * x + 3] = alpha;
        else
            image.Row(y)[4 * x + 3] = static_cast<std::uint8_t>(alpha >> 8);
    }

    static Image MakeOpaque()
    {
        Image image = Image::Allocate(37, Height, GetParam());
        for (int y = 0; y < Height; ++y)
            for (int x = 0; x < 37; ++x)
                SetAlpha(image, x, y, 65535);
        return image;
    }
};

INSTANTIATE_TEST_SUITE_P(Depths, ImageOfDepth,
                         testing::Values(Image::Depth::Bits8, Image::Depth::Bits16));

TEST_P(ImageOfDepth, isOpaqueUnlessSomethingShinesThroughOnePixel)
{
    EXPECT_TRUE(MakeOpaque().IsOpaque());
    EXPECT_FALSE(Image::Allocate(37, Height, GetParam()).IsOpaque());
    for (const int x : {0, 17, 36})
        for (const int y : {0, 15, 16, 31, 48, 49}) {
            Image image = MakeOpaque();
            SetAlpha(image, x, y, 65279);
            EXPECT_FALSE(image.IsOpaque()) << x << ", " << y;
        }
}

TEST_P(ImageOfDepth, sharesItsPixelsUntilItIsCloned)
{
    const Image image = MakeOpaque();
    const Image shared = image;
    Image clone = image.Clone();

    EXPECT_TRUE(shared.SharesPixelsWith(image));
    EXPECT_FALSE(image.IsSoleOwner());
    EXPECT_TRUE(clone.IsSoleOwner());
    EXPECT_TRUE(HaveSamePixels(clone, image));
    SetAlpha(clone, 3, 2, 0);
    EXPECT_FALSE(HaveSamePixels(clone, image));
}

TEST(Image, thatIsNullHasNothing)
{
    const Image image;
    EXPECT_TRUE(image.IsNull());
    EXPECT_TRUE(image.IsOpaque());
    EXPECT_TRUE(image.Clone().IsNull());
    EXPECT_EQ(image.GetByteCount(), 0u);
}

TEST(Image, refusesSidesThatNoPictureHas)
{
    for (const int side : {0, -1, Image::MaximumSide + 1})
        EXPECT_THROW(Image::Allocate(side, 10, Image::Depth::Bits8), Zorvik::Exception) << side;
}

} // namespace
} // namespace LumetraHost
