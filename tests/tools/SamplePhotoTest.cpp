// SPDX-License-Identifier: GPL-2.0-or-later
#include "Film.h"
#include "Renderer.h"

#include <QtGui/QColor>
#include <QtGui/QImage>

#include <gtest/gtest.h>

#include <algorithm>

namespace LumetraSample {
namespace {

QImage Photo(int width, int height, std::uint32_t seed, int threads)
{
    Renderer::Settings settings;
    settings.width = width;
    settings.height = height;
    settings.samples = 2;
    settings.seed = seed;
    settings.threads = threads;
    return Film(seed).Develop(Renderer(settings).Render());
}

struct Extremes
{
    int darkest = 255;
    int brightest = 0;
};

Extremes ExtremesOf(const QImage& image)
{
    Extremes extremes;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            const auto [low, high] = std::minmax({color.red(), color.green(), color.blue()});
            extremes.darkest = std::min(extremes.darkest, high);
            extremes.brightest = std::max(extremes.brightest, low);
        }
    }
    return extremes;
}

TEST(SamplePhoto, isEqualForOneAndForTwoThreads)
{
    const QImage alone = Photo(36, 24, 3, 1);

    const QImage shared = Photo(36, 24, 3, 2);

    EXPECT_EQ(alone, shared);
}

TEST(SamplePhoto, isEqualForTheSameSeed)
{
    const QImage first = Photo(24, 16, 5, 1);

    EXPECT_EQ(first, Photo(24, 16, 5, 1));
}

TEST(SamplePhoto, differsForAnotherSeed)
{
    const QImage first = Photo(24, 16, 3, 1);

    EXPECT_NE(first, Photo(24, 16, 4, 1));
}

TEST(SamplePhoto, hasTheSizeThatIsAskedFor)
{
    EXPECT_EQ(Photo(30, 10, 3, 2).size(), QSize(30, 10));
}

TEST(SamplePhoto, reachesFromTrueShadowsToHighlights)
{
    const QImage photo = Photo(168, 112, 3, 2);

    const Extremes extremes = ExtremesOf(photo);

    EXPECT_LT(extremes.darkest, 8) << "brightest channel of the darkest pixel";
    EXPECT_GT(extremes.brightest, 245) << "darkest channel of the brightest pixel";
}

} // namespace
} // namespace LumetraSample
