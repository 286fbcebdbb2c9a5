// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/ReferenceEffects.h"
#include "host/engine/TestPictures.h"

#include "engine/run/Renderer.h"
#include "image/Srgb.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectPtr;

Image MakeGreyRamp()
{
    Image ramp = Image::Allocate(4096, 1, Image::Depth::Bits16);
    for (int x = 0; x < 4096; ++x)
        for (int c = 0; c < 4; ++c)
            ramp.Row16(0)[4 * x + c] = static_cast<std::uint16_t>(c == 3 ? 65535 : x * 16);
    return ramp;
}

int CountFalls(const Image& ramp)
{
    int falls = 0;
    for (int x = 1; x < ramp.GetWidth(); ++x)
        falls += GetChannel(ramp, x, 0, 0) < GetChannel(ramp, x - 1, 0, 0);
    return falls;
}

TEST(ToneRegionsEffect, multipliesLightByTheGainOfItsRegion)
{
    ExpectReference(MakeEffect("toneRegions", {{"shadows", 60}, {"highlights", -40}}));
    ExpectReference(MakeEffect("toneRegions", {{"blacks", -100}, {"whites", 100}}));
    ExpectReference(MakeEffect("toneRegions", {{"midtones", 35}}));
    ExpectReference(MakeEffect(
        "toneRegions",
        {{"blacks", 20}, {"shadows", -15}, {"midtones", 5}, {"highlights", 30}, {"whites", -25}}));
}

TEST(ToneRegionsEffect, movesEachRegionByItsStops)
{
    const auto encode = [](double stops) {
        return std::lround(65535 * LinearToSrgb(std::exp2(stops)));
    };
    Image grey = Image::Allocate(1, 1, Image::Depth::Bits16);
    std::fill_n(grey.Row16(0), 3, static_cast<std::uint16_t>(encode(-5)));

    const Image result =
        Renderer().Render(grey, MakeSettings({MakeEffect("toneRegions", {{"shadows", 100}})}));

    EXPECT_NEAR(GetChannel(result, 0, 0, 0), encode(-3.5), 2);
}

TEST(ToneRegionsEffect, neverTurnsTheOrderOfTones)
{
    for (const double a : {-100.0, 100.0})
        for (const double b : {-100.0, 100.0}) {
            const auto effect = MakeEffect("toneRegions", {{"blacks", a},
                                                           {"shadows", b},
                                                           {"midtones", -a},
                                                           {"highlights", -b},
                                                           {"whites", a}});
            const Image result = Renderer().Render(MakeGreyRamp(), MakeSettings({effect}));
            EXPECT_EQ(CountFalls(result), 0) << a << ", " << b;
            EXPECT_EQ(GetChannel(result, 0, 0, 0), 0u);
        }
}

TEST(ToneCurveEffect, goesThroughItsPoints)
{
    ExpectReference(
        MakeEffect("toneCurve", {{"points", 3}, {"x1", 50}, {"y1", 62}, {"x2", 100}, {"y2", 100}}));
    ExpectReference(MakeEffect("toneCurve", {{"points", 8},
                                             {"x0", 0},
                                             {"y0", 6},
                                             {"x1", 12},
                                             {"y1", 10},
                                             {"x2", 30},
                                             {"y2", 22},
                                             {"x3", 45},
                                             {"y3", 45},
                                             {"x4", 55},
                                             {"y4", 61},
                                             {"x5", 70},
                                             {"y5", 80},
                                             {"x6", 90},
                                             {"y6", 93},
                                             {"x7", 100},
                                             {"y7", 97}}));
}

TEST(ToneCurveEffect, goesThroughSixteenPointsOfEveryCurve)
{
    const EffectPtr effect = MakeEffect("toneCurve", {});
    for (const std::string curve : {"", "red", "green", "blue"}) {
        effect->SetParameter(curve.empty() ? "points" : curve + "Points", 16);
        for (int i = 0; i < 16; ++i) {
            const double x = 100.0 * i / 15, y = x + (i % 2 == 0 ? 1.5 : -1.0);
            const std::string number = std::to_string(i);
            effect->SetParameter((curve.empty() ? "x" : curve + "X") + number, x);
            effect->SetParameter((curve.empty() ? "y" : curve + "Y") + number, y);
        }
    }
    ExpectReference(effect);
}

TEST(ToneCurveEffect, bendsSingleChannelsAfterTheMaster)
{
    ExpectReference(MakeEffect("toneCurve", {{"points", 2},
                                             {"x0", 10},
                                             {"x1", 90},
                                             {"y1", 100},
                                             {"redPoints", 3},
                                             {"redX1", 40},
                                             {"redY1", 46},
                                             {"redX2", 100},
                                             {"redY2", 100},
                                             {"bluePoints", 2},
                                             {"blueY0", 12},
                                             {"blueX1", 100},
                                             {"blueY1", 88}}));
}

TEST(ToneCurveEffect, takesPointsInAnyOrderAndTheLastOfTheSamePlace)
{
    const Image source = MakeRandomPicture(100, 20, Image::Depth::Bits16, 4);
    const auto sorted =
        MakeEffect("toneCurve", {{"points", 3}, {"x1", 50}, {"y1", 60}, {"x2", 100}, {"y2", 100}});
    const auto mixed = MakeEffect("toneCurve", {{"points", 4},
                                                {"x0", 100},
                                                {"y0", 100},
                                                {"x1", 50},
                                                {"y1", 20},
                                                {"x2", 0},
                                                {"y2", 0},
                                                {"x3", 50},
                                                {"y3", 60}});
    EXPECT_TRUE(HaveSamePixels(Renderer().Render(source, MakeSettings({sorted})),
                               Renderer().Render(source, MakeSettings({mixed}))));
}

TEST(ToneCurveEffect, doesNotSwingBeyondItsPoints)
{
    // A steep step between two levels, where a plain cubic spline would overshoot.
    const auto effect = MakeEffect("toneCurve", {{"points", 6},
                                                 {"x1", 40},
                                                 {"y1", 20},
                                                 {"x2", 45},
                                                 {"y2", 20},
                                                 {"x3", 50},
                                                 {"y3", 80},
                                                 {"x4", 60},
                                                 {"y4", 80},
                                                 {"x5", 100},
                                                 {"y5", 100}});
    const Image result = Renderer().Render(MakeGreyRamp(), MakeSettings({effect}));
    EXPECT_EQ(CountFalls(result), 0);
    for (int x = 1640; x < 1843; ++x)
        EXPECT_NEAR(GetChannel(result, x, 0, 0), 13107, 1) << x;
}

TEST(ParametricCurveEffect, bendsEachRegionByTheFormula)
{
    ExpectReference(MakeEffect("parametricCurve", {{"darks", -40}, {"lights", 30}}));
    ExpectReference(
        MakeEffect("parametricCurve",
                   {{"shadows", 100}, {"darks", -100}, {"lights", 100}, {"highlights", -100}}));
    ExpectReference(MakeEffect("parametricCurve", {{"shadows", -70},
                                                   {"highlights", 80},
                                                   {"shadowSplit", 70},
                                                   {"midtoneSplit", 20},
                                                   {"highlightSplit", 30}}));
}

TEST(ParametricCurveEffect, neverTurnsTheOrderOfTones)
{
    for (int signs = 0; signs < 16; ++signs)
        for (const double split : {0.0, 100.0}) {
            const auto amount = [signs](int bit) { return signs & bit ? 100.0 : -100.0; };
            const auto effect = MakeEffect("parametricCurve", {{"shadows", amount(1)},
                                                               {"darks", amount(2)},
                                                               {"lights", amount(4)},
                                                               {"highlights", amount(8)},
                                                               {"shadowSplit", split},
                                                               {"midtoneSplit", 100 - split},
                                                               {"highlightSplit", split}});
            const Image result = Renderer().Render(MakeGreyRamp(), MakeSettings({effect}));
            EXPECT_EQ(CountFalls(result), 0) << signs << ", " << split;
            EXPECT_EQ(GetChannel(result, 0, 0, 0), 0u);
        }
}

TEST(ParametricCurveEffect, movesItsOwnRegionFurtherWithTheAmount)
{
    const std::pair<const char*, int> regions[] = {
        {"shadows", 512}, {"darks", 1536}, {"lights", 2560}, {"highlights", 3584}};
    for (const auto& [region, place] : regions) {
        unsigned before = 0;
        for (const double amount : {-100.0, -50.0, 0.0, 50.0, 100.0}) {
            const Image result = Renderer().Render(
                MakeGreyRamp(), MakeSettings({MakeEffect("parametricCurve", {{region, amount}})}));
            const unsigned seen = GetChannel(result, place, 0, 0);
            EXPECT_GT(seen, before + 600) << region << ' ' << amount;
            EXPECT_EQ(GetChannel(result, 4095, 0, 0) > 65000, true);
            before = seen;
        }
    }
}

TEST(ToneCurveEffect, changesNothingWithoutTwoPointsOrAlongTheDiagonal)
{
    const Image source = MakeRandomPicture(30, 20, Image::Depth::Bits8, 4);
    for (const auto& effect :
         {MakeEffect("toneCurve", {{"points", 1}, {"x0", 50}, {"y0", 80}}),
          MakeEffect("toneCurve",
                     {{"points", 3}, {"x1", 30}, {"y1", 30}, {"x2", 100}, {"y2", 100}})})
        EXPECT_TRUE(Renderer().Render(source, MakeSettings({effect})).SharesPixelsWith(source));
}

} // namespace
} // namespace LumetraHost
