// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/HueChart.h"
#include "host/engine/ReferenceEffects.h"
#include "host/engine/ReferenceFormulas.h"
#include "host/engine/TestPictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectPtr;

constexpr double Step16 = 1.0 / 65535;
const std::string Ranges[] = {"shadow", "midtone", "highlight"};

Colour MakeGrey(double value)
{
    return {value, value, value};
}

std::vector<Colour> MakeGreyRamp()
{
    std::vector<Colour> ramp;
    for (int i = 0; i <= 4096; ++i)
        ramp.push_back(MakeGrey(i / 4096.0));
    return ramp;
}

EffectPtr MakeGrading(const std::string& parameter, double amount)
{
    return MakeEffect("colourGrading", {{parameter.c_str(), amount}});
}

EffectPtr MakeLuminances(double shadow, double midtone, double highlight, double global)
{
    return MakeEffect("colourGrading", {{"shadowLuminance", shadow},
                                        {"midtoneLuminance", midtone},
                                        {"highlightLuminance", highlight},
                                        {"globalLuminance", global}});
}

TEST(ColourGradingEffect, gradesByTheFormula)
{
    ExpectReference(MakeEffect("colourGrading", {{"shadowHue", 215},
                                                 {"shadowSaturation", 40},
                                                 {"highlightHue", 340},
                                                 {"highlightSaturation", 45},
                                                 {"blending", 80}}));
    ExpectReference(MakeLuminances(-100, 100, -100, 60));
    ExpectReference(MakeEffect("colourGrading", {{"shadowHue", 359},
                                                 {"shadowSaturation", 100},
                                                 {"shadowLuminance", 100},
                                                 {"midtoneHue", 170},
                                                 {"midtoneSaturation", 100},
                                                 {"midtoneLuminance", -100},
                                                 {"globalHue", 60},
                                                 {"globalSaturation", 50},
                                                 {"balance", 100},
                                                 {"blending", 0}}));
    ExpectReference(MakeEffect(
        "colourGrading", {{"highlightLuminance", 70}, {"globalLuminance", -40}, {"balance", -80}}));
}

TEST(ColourGradingEffect, leavesBlackAndWhite)
{
    const EffectPtr effect = MakeEffect("colourGrading", {{"shadowHue", 240},
                                                          {"shadowSaturation", 100},
                                                          {"shadowLuminance", 100},
                                                          {"highlightSaturation", 100},
                                                          {"highlightLuminance", -100},
                                                          {"globalSaturation", 100},
                                                          {"globalLuminance", -100}});
    const auto drawn = DrawChart({MakeGrey(0), MakeGrey(1)}, effect);
    EXPECT_EQ(drawn[0], MakeGrey(0));
    EXPECT_EQ(drawn[1], MakeGrey(1));
}

TEST(ColourGradingEffect, leavesGreysGreyWithoutTints)
{
    for (const Colour& c : DrawChart(MakeGreyRamp(), MakeLuminances(80, -60, 100, 40))) {
        ASSERT_EQ(c[0], c[1]);
        ASSERT_EQ(c[1], c[2]);
    }
}

TEST(ColourGradingEffect, reachesItsOwnRangeMost)
{
    const std::vector<Colour> tones = {MakeGrey(0.2), MakeGrey(0.5), MakeGrey(0.8)};
    for (std::size_t range = 0; range < 3; ++range)
        for (const char* const number : {"Saturation", "Luminance"}) {
            const auto drawn = DrawChart(tones, MakeGrading(Ranges[range] + number, 100));
            std::vector<double> changes;
            for (std::size_t i = 0; i < 3; ++i)
                changes.push_back(std::abs(drawn[i][0] - tones[i][0]));
            EXPECT_EQ(std::max_element(changes.begin(), changes.end()) - changes.begin(),
                      std::ptrdiff_t(range))
                << Ranges[range] << number;
        }
}

TEST(ColourGradingEffect, tintsInTheHueAndKeepsTheLuma)
{
    for (const std::string range : {"shadow", "midtone", "highlight", "global"})
        for (const double hue : {0.0, 45.0, 200.0, 340.0}) {
            const EffectPtr effect = MakeGrading(range + "Hue", hue);
            effect->SetParameter(range + "Saturation", 60);
            int tinted = 0;
            for (const double grey : {0.3, 0.5, 0.7}) {
                const Colour drawn = DrawColour(MakeGrey(grey), effect);
                EXPECT_NEAR(Luma(drawn), grey, 2 * Step16) << range << hue;
                if (MeasureChroma(drawn) < 0.05)
                    continue;
                EXPECT_NEAR(MeasureTurn(drawn, hue), 0, 0.5) << range << hue;
                ++tinted;
            }
            EXPECT_GT(tinted, 0) << range << hue;
        }
}

TEST(ColourGradingEffect, lightensFurtherWithTheAmount)
{
    for (const std::string range : {"shadow", "midtone", "highlight", "global"}) {
        double before = 0;
        for (const double amount : {-100.0, -50.0, 0.0, 50.0, 100.0}) {
            const double grey = range == "shadow" ? 0.25 : range == "highlight" ? 0.75 : 0.5;
            const double seen =
                DrawColour(MakeGrey(grey), MakeGrading(range + "Luminance", amount))[0];
            EXPECT_GT(seen, before + 0.01) << range << ' ' << amount;
            before = seen;
        }
    }
}

TEST(ColourGradingEffect, neverTurnsTheOrderOfTones)
{
    for (const double balance : {-100.0, 0.0, 100.0})
        for (int signs = 0; signs < 16; ++signs) {
            const auto amount = [signs](int bit) { return signs & bit ? 100.0 : -100.0; };
            const EffectPtr effect = MakeLuminances(amount(1), amount(2), amount(4), amount(8));
            effect->SetParameter("balance", balance);
            const auto drawn = DrawChart(MakeGreyRamp(), effect);
            int falls = 0;
            for (std::size_t i = 1; i < drawn.size(); ++i)
                falls += drawn[i][0] < drawn[i - 1][0];
            EXPECT_EQ(falls, 0) << balance << ", " << signs;
        }
}

TEST(ColourGradingEffect, givesMoreToTheHighlightsWithMoreBalance)
{
    const auto measure = [](double balance) {
        return MeasureChroma(DrawColour(
            MakeGrey(0.7),
            MakeEffect("colourGrading", {{"highlightSaturation", 60}, {"balance", balance}})));
    };
    EXPECT_GT(measure(0), measure(-40));
    EXPECT_GT(measure(40), measure(0) + 0.02);
}

TEST(ColourGradingEffect, mixesRangesFurtherWithMoreBlending)
{
    const auto measure = [](double blending) {
        return MeasureChroma(DrawColour(
            MakeGrey(0.4),
            MakeEffect("colourGrading", {{"shadowSaturation", 60}, {"blending", blending}})));
    };
    EXPECT_EQ(measure(0), 0);
    EXPECT_GT(measure(100), 0.02);
}

TEST(ColourGradingEffect, reachesColoursOutsideOfTheRangeWithoutJumps)
{
    const EffectPtr effect = MakeLuminances(100, -100, 100, 40);
    effect->SetParameter("shadowSaturation", 100);
    effect->SetParameter("highlightHue", 200);
    effect->SetParameter("highlightSaturation", 100);
    ExpectNoJumps(effect, 8);
}

} // namespace
} // namespace LumetraHost
