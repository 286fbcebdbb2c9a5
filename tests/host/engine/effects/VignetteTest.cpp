// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/Reference.h"
#include "host/engine/TestPictures.h"

#include "engine/effects/vignette/VignetteEffect.h"
#include "engine/run/Renderer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace LumetraHost {
namespace {

constexpr double Width = 301;
constexpr double Height = 67;

struct Numbers
{
    double amount;
    double size;
    double feather;
    double roundness;
};

double FallOff(const Numbers& n, double x, double y)
{
    const double radius = std::sqrt(Width / 2 * Height / 2);
    const double a = Width / 2 * (1 - n.roundness / 100) + radius * n.roundness / 100;
    const double b = Height / 2 * (1 - n.roundness / 100) + radius * n.roundness / 100;
    const double distance = std::hypot((x - Width / 2) / a, (y - Height / 2) / b) /
                            std::hypot(Width / 2 / a, Height / 2 / b);
    const double begin = n.size / 100;
    const double end = begin + n.feather / 100 * (1 - begin);
    const double t = std::clamp((distance - begin) / (end - begin), 0.0, 1.0);
    return 1 + (std::exp2(n.amount) - 1) * (3 * t * t - 2 * t * t * t);
}

Zorvik::Quindle::EffectPtr MakeVignette(const Numbers& n)
{
    return MakeEffect("vignette", {{"amount", n.amount},
                                   {"size", n.size},
                                   {"feather", n.feather},
                                   {"roundness", n.roundness}});
}

TEST(VignetteEffect, multipliesLinearLightByItsFallOff)
{
    for (const Numbers& n : {Numbers{-2, 40, 100, 0}, Numbers{-5, 0, 50, 100},
                             Numbers{1.5, 70, 30, 35}, Numbers{-1, 20, 10, 60}})
        ExpectFormula(MakeSettings({MakeVignette(n)}), [&n](const Colour& c, int x, int y) {
            const double factor = FallOff(n, x + 0.5, y + 0.5);
            return Colour{c[0] * factor, c[1] * factor, c[2] * factor};
        });
}

TEST(VignetteEffect, leavesTheInsideAndReachesItsAmountInTheCorners)
{
    Image grey = Image::Allocate(400, 300, Image::Depth::Bits16);
    for (int y = 0; y < 300; ++y)
        std::fill_n(grey.Row16(y), 1600, static_cast<std::uint16_t>(30000));

    const Image result = Renderer().Render(
        grey, MakeSettings({MakeEffect("vignette", {{"amount", -5}, {"size", 50}})}));

    EXPECT_NEAR(GetChannel(result, 200, 150, 0), 30000, 1);
    EXPECT_NEAR(GetChannel(result, 300, 150, 1), 30000, 1);
    EXPECT_LT(GetChannel(result, 0, 0, 1), 6000u);
    EXPECT_EQ(GetChannel(result, 0, 0, 2), GetChannel(result, 399, 299, 2));
}

TEST(VignetteEffect, drawsAHardEdgeWithoutFeather)
{
    Image grey = Image::Allocate(1000, 2, Image::Depth::Bits8);
    std::fill_n(grey.Row(0), 4000, static_cast<std::uint8_t>(128));
    std::fill_n(grey.Row(1), 4000, static_cast<std::uint8_t>(128));
    const auto effect =
        MakeEffect("vignette", {{"amount", -1}, {"size", 50}, {"feather", 0}, {"roundness", 0}});

    const Image result = Renderer().Render(grey, MakeSettings({effect}));

    int between = 0;
    for (int x = 0; x < 1000; ++x)
        between += GetChannel(result, x, 0, 0) != 128 &&
                   GetChannel(result, x, 0, 0) != GetChannel(result, 0, 0, 0);
    EXPECT_LT(GetChannel(result, 0, 0, 0), 100u);
    EXPECT_LE(between, 4);
}

TEST(VignetteEffect, drawsAPartAsThatPartOfTheWhole)
{
    const Image whole = MakeRandomPicture(300, 200, Image::Depth::Bits8, 5);
    Image part = Image::Allocate(100, 50, Image::Depth::Bits8);
    for (int y = 0; y < 50; ++y)
        std::copy_n(whole.Row(y + 120) + 4 * 180, 400, part.Row(y));
    const auto settings = MakeSettings({MakeEffect("vignette", {{"amount", -3}, {"size", 20}})});
    RenderOptions options;
    options.area = PictureArea::Whole(300, 200);
    options.area->originX = 180;
    options.area->originY = 120;

    const Image result = Renderer().Render(part, settings, options);
    const Image expected = Renderer().Render(whole, settings);

    for (int y = 0; y < 50; ++y)
        for (int x = 0; x < 100; ++x)
            EXPECT_NEAR(GetChannel(result, x, y, 0), GetChannel(expected, x + 180, y + 120, 0), 1);
}

TEST(VignetteEffect, changesNothingWhenItBeginsInTheCorners)
{
    VignetteParameters parameters;
    parameters.amount = -2;
    EXPECT_FALSE(parameters.IsIdentity());
    parameters.size = 100;
    EXPECT_TRUE(parameters.IsIdentity());
}

} // namespace
} // namespace LumetraHost
