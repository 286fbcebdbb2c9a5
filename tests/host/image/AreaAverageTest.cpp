// SPDX-License-Identifier: GPL-2.0-or-later
#include "image/AreaAverage.h"

#include "host/engine/TestPictures.h"

#include <gtest/gtest.h>

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>
#include <utility>

namespace LumetraHost {
namespace {

Image MakeOpaquePicture(int width, int height, Image::Depth depth)
{
    Image image = MakeRandomPicture(width, height, depth, 5);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            if (depth == Image::Depth::Bits16)
                image.Row16(y)[4 * x + 3] = 65535;
            else
                image.Row(y)[4 * x + 3] = 255;
    return image;
}

/// Shrinks row by row, with no more source rows at a time than `buffer` has.
Image Shrink(const Image& source, int width, int height, int buffer)
{
    const AreaAverage average(source.GetWidth(), source.GetHeight(), width, height);
    Image rows = Image::Allocate(source.GetWidth(), buffer, source.GetDepth());
    Image target = Image::Allocate(width, height, source.GetDepth());
    const std::size_t bytes =
        source.GetBytesPerPixel() * static_cast<std::size_t>(source.GetWidth());
    int read = 0;
    for (int y = 0; y < height; ++y) {
        EXPECT_LE(average.GetRowEnd(y) - average.GetFirstRow(y), buffer);
        for (; read < average.GetRowEnd(y); ++read)
            std::copy_n(source.Row(read), bytes, rows.Row(read % buffer));
        average.Run(rows, y, target, y);
    }
    EXPECT_EQ(read, source.GetHeight());
    return target;
}

cv::Mat Wrap(const Image& image)
{
    const int type = image.GetDepth() == Image::Depth::Bits16 ? CV_16UC4 : CV_8UC4;
    return {image.GetHeight(), image.GetWidth(), type, const_cast<std::uint8_t*>(image.Row(0)),
            image.GetStride()};
}

/// The image library's area averages.
Image ShrinkWhole(const Image& source, int width, int height)
{
    Image target = Image::Allocate(width, height, source.GetDepth());
    cv::Mat pixels = Wrap(target);
    cv::resize(Wrap(source), pixels, pixels.size(), 0, 0, cv::INTER_AREA);
    return target;
}

void ExpectSameAsWhole(int width, int height, int smallWidth, int smallHeight)
{
    const int buffer = height / smallHeight + 2;
    for (const auto depth : {Image::Depth::Bits8, Image::Depth::Bits16}) {
        const Image source = MakeOpaquePicture(width, height, depth);
        const Image expected = ShrinkWhole(source, smallWidth, smallHeight);
        EXPECT_TRUE(HaveSamePixels(Shrink(source, smallWidth, smallHeight, buffer), expected))
            << width << " x " << height << " to " << smallWidth << " x " << smallHeight << ", "
            << 8 * source.GetBytesPerChannel() << " bits";
    }
}

TEST(AreaAverage, makesTheRowsOfTheWholePicture)
{
    for (const auto& [width, height] : {std::pair{300, 200}, {301, 203}, {97, 400}})
        for (const auto& [smallWidth, smallHeight] :
             {std::pair{1, 1}, {17, 13}, {50, 33}, {96, 199}, {97, 200}})
            ExpectSameAsWhole(width, height, smallWidth, smallHeight);
}

TEST(AreaAverage, makesTheRowsOfTheWholePictureByWholeFactors)
{
    for (const auto& [x, y] : {std::pair{2, 2},
                               {3, 3},
                               {4, 4},
                               {2, 1},
                               {1, 2},
                               {4, 1},
                               {1, 4},
                               {5, 3},
                               {7, 7},
                               {20, 20},
                               {49, 49},
                               {33, 31}})
        ExpectSameAsWhole(x * 12, y * 9, 12, 9);
}

TEST(AreaAverage, shrinksInOneDirectionAlone)
{
    ExpectSameAsWhole(300, 1, 100, 1);
    ExpectSameAsWhole(300, 1, 77, 1);
    ExpectSameAsWhole(1, 300, 1, 77);
    ExpectSameAsWhole(300, 20, 77, 20);
    ExpectSameAsWhole(20, 300, 20, 299);
}

TEST(AreaAverage, makesTheSizesOfLimitedPhotos)
{
    for (const int longest : {1, 5, 99, 150, 298, 299, 300}) {
        const int other = std::max(1, static_cast<int>(std::lround(longest * 200 / 300.0)));
        ExpectSameAsWhole(300, 200, longest, other);
        ExpectSameAsWhole(200, 300, other, longest);
    }
}

} // namespace
} // namespace LumetraHost
