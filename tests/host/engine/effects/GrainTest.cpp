// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/ReferenceEffects.h"
#include "host/engine/TestPictures.h"

#include "engine/run/Renderer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace LumetraHost {
namespace {

Image MakeGrey(int width, int height, unsigned value)
{
    Image grey = Image::Allocate(width, height, Image::Depth::Bits16);
    for (int y = 0; y < height; ++y)
        std::fill_n(grey.Row16(y), 4 * width, static_cast<std::uint16_t>(value));
    return grey;
}

struct Statistics
{
    double mean = 0;
    double deviation = 0;
};

/// Measures in parts of white.
Statistics Measure(const Image& image)
{
    const double count = double(image.GetWidth()) * image.GetHeight();
    double sum = 0, squares = 0;
    for (int y = 0; y < image.GetHeight(); ++y)
        for (int x = 0; x < image.GetWidth(); ++x) {
            const double value = GetChannel(image, x, y, 1) / 65535.0;
            sum += value / count;
            squares += value * value / count;
        }
    return {sum, std::sqrt(squares - sum * sum)};
}

TEST(GrainEffect, addsLatticeNoiseByTheFormula)
{
    ExpectReference(MakeEffect("grain", {{"amount", 100}, {"size", 5}}));
    ExpectReference(MakeEffect("grain", {{"amount", 30}, {"size", 2}, {"roughness", 0}}));
    ExpectReference(
        MakeEffect("grain", {{"amount", 60}, {"roughness", 100}, {"size", 4}, {"seed", 4711}}));
}

TEST(GrainEffect, hasTheDeviationOfItsAmountInMiddleTonesAndSparesBlackAndWhite)
{
    for (const double roughness : {0.0, 50.0, 100.0}) {
        const auto settings = MakeSettings(
            {MakeEffect("grain", {{"amount", 50}, {"size", 5}, {"roughness", roughness}})});
        const Statistics middle = Measure(Renderer().Render(MakeGrey(1200, 900, 32768), settings));
        EXPECT_NEAR(middle.mean, 0.5, 0.002) << roughness;
        EXPECT_NEAR(middle.deviation, 0.05, 0.002) << roughness;
        EXPECT_EQ(Measure(Renderer().Render(MakeGrey(50, 50, 0), settings)).deviation, 0);
        EXPECT_LT(Measure(Renderer().Render(MakeGrey(50, 50, 65535), settings)).deviation, 1e-6);
    }
}

TEST(GrainEffect, isAnotherOneForAnotherSeed)
{
    const Image grey = MakeGrey(300, 200, 32768);
    const auto render = [&grey](double seed) {
        return Renderer().Render(
            grey,
            MakeSettings({MakeEffect("grain", {{"amount", 50}, {"size", 5}, {"seed", seed}})}));
    };
    const Image first = render(1), again = render(1), other = render(2);
    double correlation = 0;
    for (int y = 0; y < 200; ++y)
        for (int x = 0; x < 300; ++x)
            correlation += (GetChannel(first, x, y, 0) / 65535.0 - 0.5) *
                           (GetChannel(other, x, y, 0) / 65535.0 - 0.5) / (0.05 * 0.05 * 60000);
    EXPECT_TRUE(HaveSamePixels(first, again));
    EXPECT_NEAR(correlation, 0, 0.1);
}

TEST(GrainEffect, drawsAPartAsThatPartOfTheWhole)
{
    const auto settings = MakeSettings({MakeEffect("grain", {{"amount", 80}, {"size", 1}})});
    const Image whole = Renderer().Render(MakeGrey(900, 700, 30000), settings);
    RenderOptions options;
    options.area = PictureArea::Whole(900, 700);
    options.area->originX = 333;
    options.area->originY = 444;

    const Image part = Renderer().Render(MakeGrey(100, 50, 30000), settings, options);

    int different = 0;
    for (int y = 0; y < 50; ++y)
        for (int x = 0; x < 100; ++x)
            different += std::abs(int(GetChannel(part, x, y, 0)) -
                                  int(GetChannel(whole, x + 333, y + 444, 0))) > 1;
    EXPECT_EQ(different, 0);
}

// The preview of a big picture must look like that picture made smaller.
TEST(GrainEffect, looksTheSameInAPreview)
{
    const auto settings = MakeSettings({MakeEffect("grain", {{"amount", 80}, {"size", 2}})});
    const Image full = Renderer().Render(MakeGrey(1600, 1200, 30000), settings);
    Image reduced = MakeGrey(400, 300, 0);
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 400; ++x) {
            unsigned sum = 0;
            for (int i = 0; i < 16; ++i)
                sum += GetChannel(full, 4 * x + i % 4, 4 * y + i / 4, 1);
            reduced.Row16(y)[4 * x + 1] = static_cast<std::uint16_t>(sum / 16);
        }
    RenderOptions options;
    options.area = PictureArea::Whole(1600, 1200);
    options.area->scaleX = options.area->scaleY = 4;

    const Image preview = Renderer().Render(MakeGrey(400, 300, 30000), settings, options);

    const double expected = Measure(reduced).deviation;
    EXPECT_NEAR(Measure(preview).deviation, expected, 0.35 * expected);
}

} // namespace
} // namespace LumetraHost
