// SPDX-License-Identifier: GPL-2.0-or-later
#include "image/Overview.h"

#include "host/engine/TestPictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <numeric>
#include <thread>
#include <vector>

namespace LumetraHost {
namespace {

constexpr double Enough = 5e4; // pixels

/// Soft colours with some grain, opaque.
Image MakeLargePhoto(int width, int height, Image::Depth depth = Image::Depth::Bits8)
{
    Image image = Image::AllocateUninitialised(width, height, depth);
    std::vector<double> waves(static_cast<std::size_t>(width));
    for (int x = 0; x < width; ++x)
        waves[static_cast<std::size_t>(x)] = 90 * std::sin(0.02 * x);
    for (int y = 0; y < height; ++y)
        for (int i = 0; i < 4 * width; ++i) {
            const double colour =
                128 + waves[static_cast<std::size_t>(i / 4)] + (7 * i + 5 * y) % 23;
            const auto value = static_cast<unsigned>(i % 4 == 3 ? 255 : colour);
            if (depth == Image::Depth::Bits16)
                image.Row16(y)[i] = static_cast<std::uint16_t>(257 * value);
            else
                image.Row(y)[i] = static_cast<std::uint8_t>(value);
        }
    return image;
}

/// How far each value of two pictures lies apart, in steps of 8 bits.
std::vector<double> GetDistances(const Image& first, const Image& second)
{
    std::vector<double> distances;
    for (int y = 0; y < first.GetHeight(); ++y)
        for (int x = 0; x < first.GetWidth(); ++x)
            for (int channel = 0; channel < 4; ++channel)
                distances.push_back(255.0 / GetWhite(first) *
                                    std::abs(double(GetChannel(first, x, y, channel)) -
                                             GetChannel(second, x, y, channel)));
    return distances;
}

struct Look
{
    PixelRect area;
    int width, height;
};

void ExpectSameAsPhoto(const Image& photo, const Look& look)
{
    SCOPED_TRACE(testing::Message() << look.area.x << ", " << look.area.y << " to " << look.width
                                    << " x " << look.height);
    Overview overview(photo, Enough);
    const Image shown = overview.Resize(look.area, look.width, look.height, ResizeQuality::Screen);
    const Image expected = Resize(photo, look.area, look.width, look.height, ResizeQuality::Fine);
    ASSERT_EQ(shown.GetWidth(), look.width);
    ASSERT_EQ(shown.GetHeight(), look.height);
    const auto distances = GetDistances(shown, expected);
    EXPECT_LT(*std::max_element(distances.begin(), distances.end()), 3);
    const double sum = std::accumulate(distances.begin(), distances.end(), 0.0);
    EXPECT_LT(sum, 0.5 * double(distances.size()));
}

// No whole number divides these sides; the parts begin between the pixels of the overview.
TEST(Overview, showsWhatThePhotoDoes)
{
    for (const auto depth : {Image::Depth::Bits8, Image::Depth::Bits16}) {
        const Image photo = MakeLargePhoto(601, 403, depth);
        for (const Look& look : {Look{{0, 0, 601, 403}, 60, 40},
                                 {{0, 0, 601, 403}, 149, 99},
                                 {{99, 1, 403, 402}, 51, 51},
                                 {{401, 203, 200, 200}, 33, 17}})
            ExpectSameAsPhoto(photo, look);
    }
}

TEST(Overview, leavesOtherSizesToThePhoto)
{
    const Image photo = MakeLargePhoto(600, 400);
    Overview overview(photo, Enough);
    const PixelRect part{10, 20, 300, 200};
    EXPECT_TRUE(HaveSamePixels(overview.Resize(part, 100, 70, ResizeQuality::Screen),
                               Resize(photo, part, 100, 70, ResizeQuality::Screen)));
    const PixelRect whole{0, 0, 600, 400};
    EXPECT_TRUE(HaveSamePixels(Overview(photo).Resize(whole, 31, 20, ResizeQuality::Fast),
                               Resize(photo, whole, 31, 20, ResizeQuality::Fast)));
}

TEST(Overview, leavesTransparentPhotosToResize)
{
    Image photo = MakeLargePhoto(600, 400);
    for (int x = 100; x < 400; ++x)
        photo.Row(50)[4 * x + 3] = 0;
    const PixelRect whole{0, 0, 600, 400};
    EXPECT_TRUE(HaveSamePixels(Overview(photo, Enough).Resize(whole, 60, 40, ResizeQuality::Screen),
                               Resize(photo, whole, 60, 40, ResizeQuality::Screen)));
}

TEST(Overview, readsThePhotoOnceWhoeverAsks)
{
    Image photo = MakeLargePhoto(600, 400);
    const PixelRect whole{0, 0, 600, 400};
    Overview overview(photo, Enough);
    std::vector<Image> shown(3);
    std::vector<std::thread> viewers;
    for (Image& picture : shown)
        viewers.emplace_back(
            [&] { picture = overview.Resize(whole, 30, 20, ResizeQuality::Screen); });
    for (std::thread& viewer : viewers)
        viewer.join();
    // Nobody looks at these pixels again.
    for (int y = 0; y < photo.GetHeight(); ++y)
        std::fill_n(photo.Row(y), 4 * photo.GetWidth(), std::uint8_t{255});
    for (const Image& picture : shown)
        EXPECT_TRUE(HaveSamePixels(picture, overview.Resize(whole, 30, 20, ResizeQuality::Screen)));
    EXPECT_LT(GetChannel(shown[0], 0, 0, 0), 255u);
}

} // namespace
} // namespace LumetraHost
