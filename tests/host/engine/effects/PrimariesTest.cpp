// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/HueChart.h"
#include "host/engine/ReferenceEffects.h"
#include "host/engine/ReferenceFormulas.h"
#include "host/engine/TestPictures.h"

#include "engine/run/Renderer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectPtr;

constexpr double Step16 = 1.0 / 65535;

/// Muted enough to stay in the picture's range whatever the parameters.
std::vector<Colour> MakeMutedChart()
{
    std::vector<Colour> chart;
    for (int degrees = 0; degrees < 360; degrees += 5)
        chart.push_back(MakeHue(degrees, 0.45, 0.1));
    return chart;
}

EffectPtr MakeExtremes(double shadowTint)
{
    return MakeEffect("primaries", {{"redHue", 100},
                                    {"redSaturation", -100},
                                    {"greenHue", -100},
                                    {"greenSaturation", 100},
                                    {"blueHue", 60},
                                    {"blueSaturation", 80},
                                    {"shadowTint", shadowTint}});
}

TEST(PrimariesEffect, mixesByTheFormula)
{
    ExpectReference(MakeEffect("primaries", {{"redHue", 30}, {"blueSaturation", -40}}));
    ExpectReference(MakeEffect("primaries", {{"shadowTint", 100}}));
    ExpectReference(MakeExtremes(0));
    ExpectReference(MakeExtremes(-70));
}

TEST(PrimariesEffect, leavesGreysToTheBitUnlessShadowsAreTinted)
{
    ExpectGreysStay(MakeExtremes(0));
}

TEST(PrimariesEffect, keepsTheLuma)
{
    const auto chart = MakeMutedChart();
    for (const double tint : {0.0, 100.0}) {
        const auto drawn = DrawChart(chart, MakeExtremes(tint));
        for (std::size_t i = 0; i < chart.size(); ++i)
            EXPECT_NEAR(Luma(drawn[i]), Luma(chart[i]), 2 * Step16) << 5 * i << " degrees";
    }
}

TEST(PrimariesEffect, turnsAPrimaryFurtherWithTheAmount)
{
    const std::string names[] = {"red", "green", "blue"};
    for (int i = 0; i < 3; ++i) {
        double before = -180;
        for (const double amount : {-100.0, -50.0, 0.0, 50.0, 100.0}) {
            const std::string parameter = names[i] + "Hue";
            const double turn =
                MeasureTurn(DrawColour(MakeHue(120 * i, 0.4, 0.1),
                                       MakeEffect("primaries", {{parameter.c_str(), amount}})),
                            120 * i);
            EXPECT_GT(turn, before + 5) << parameter << ' ' << amount;
            before = turn;
        }
    }
}

TEST(PrimariesEffect, saturatesAsTheEffectSaturationWhenAllThreeAreEqual)
{
    const Image source = MakeRandomPicture(100, 20, Image::Depth::Bits16, 4);
    const Image expected =
        Renderer().Render(source, MakeSettings({MakeEffect("saturation", {{"amount", 40}})}));
    const Image result = Renderer().Render(
        source, MakeSettings({MakeEffect(
                    "primaries",
                    {{"redSaturation", 40}, {"greenSaturation", 40}, {"blueSaturation", 40}})}));
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 100; ++x)
            for (int c = 0; c < 3; ++c)
                ASSERT_NEAR(GetChannel(result, x, y, c), GetChannel(expected, x, y, c), 1);
}

TEST(PrimariesEffect, tintsDarkGreysTowardsMagentaOrGreen)
{
    for (const double tint : {-80.0, 80.0}) {
        const EffectPtr effect = MakeEffect("primaries", {{"shadowTint", tint}});
        const auto drawn = DrawChart({{0.25, 0.25, 0.25}, {0.8, 0.8, 0.8}}, effect);
        const double dark = drawn[0][0] - drawn[0][1], light = drawn[1][0] - drawn[1][1];
        EXPECT_GT(dark * tint, 0);
        EXPECT_GT(dark / light, 5);
        const auto ends = DrawChart({{0, 0, 0}, {1, 1, 1}}, effect);
        EXPECT_EQ(ends[0], (Colour{0, 0, 0}));
        EXPECT_EQ(ends[1], (Colour{1, 1, 1}));
    }
}

TEST(PrimariesEffect, reachesColoursOutsideOfTheRangeWithoutJumps)
{
    ExpectNoJumps(MakeExtremes(100), 8);
}

} // namespace
} // namespace LumetraHost
