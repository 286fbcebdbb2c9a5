// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/HueChart.h"
#include "host/engine/ReferenceEffects.h"
#include "host/engine/ReferenceFormulas.h"
#include "host/engine/TestPictures.h"

#include <gtest/gtest.h>

#include <string>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectPtr;

constexpr double Step16 = 1.0 / 65535;

EffectPtr MakeMixer(const std::string& hue, double amount)
{
    return MakeEffect("greyMixer", {{"amount", 100}, {hue.c_str(), amount}});
}

EffectPtr MakeExtremeMixer(double amount)
{
    const EffectPtr effect = MakeEffect("greyMixer", {{"amount", amount}});
    double light = 100;
    for (const NamedHue& hue : GetNamedHues()) {
        effect->SetParameter(hue.name, light);
        light = -light;
    }
    return effect;
}

TEST(GreyMixerEffect, mixesByTheFormula)
{
    ExpectReference(MakeEffect("greyMixer", {{"amount", 100}}));
    ExpectReference(
        MakeEffect("greyMixer", {{"amount", 35}, {"blue", -60}, {"aqua", 20}, {"magenta", 100}}));
    ExpectReference(MakeExtremeMixer(100));
}

TEST(GreyMixerEffect, leavesGreysToTheBit)
{
    ExpectGreysStay(MakeExtremeMixer(100));
    ExpectGreysStay(MakeExtremeMixer(40));
}

TEST(GreyMixerEffect, makesEveryColourGrey)
{
    for (int degrees = 0; degrees < 360; degrees += 7) {
        const Colour drawn = DrawColour(MakeHue(degrees), MakeExtremeMixer(100));
        EXPECT_EQ(MeasureChroma(drawn), 0) << degrees;
    }
}

TEST(GreyMixerEffect, movesTheNamedHueAndNotItsOpposite)
{
    for (const NamedHue& hue : GetNamedHues()) {
        const Colour own = MakeHue(hue.degrees), opposite = MakeHue(hue.degrees + 180);
        double before = 0;
        for (const double amount : {-100.0, -50.0, 0.0, 50.0, 100.0}) {
            const auto drawn = DrawChart({own, opposite}, MakeMixer(hue.name, amount));
            EXPECT_GT(drawn[0][0], before + 0.03) << hue.name << ' ' << amount;
            EXPECT_NEAR(drawn[1][0], Luma(opposite), Step16) << hue.name << ' ' << amount;
            before = drawn[0][0];
        }
    }
}

TEST(GreyMixerEffect, reachesColoursOutsideOfTheRangeWithoutJumps)
{
    ExpectNoJumps(MakeExtremeMixer(100), 20);
}

} // namespace
} // namespace LumetraHost
