// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/Reference.h"
#include "host/engine/TestPictures.h"

#include "engine/run/Renderer.h"
#include "image/Srgb.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace LumetraHost {
namespace {

double Luma(const Colour& c)
{
    return 0.2126 * c[0] + 0.7152 * c[1] + 0.0722 * c[2];
}

double Power(double value, double exponent)
{
    return std::copysign(0.18 * std::pow(std::abs(value) / 0.18, exponent), value);
}

Colour Expose(const Colour& c, double stops)
{
    return {c[0] * std::exp2(stops), c[1] * std::exp2(stops), c[2] * std::exp2(stops)};
}

Colour Saturate(const Colour& linear, double amount)
{
    const double s = 1 + amount / 100;
    const Colour c = {LinearToSrgb(linear[0]), LinearToSrgb(linear[1]), LinearToSrgb(linear[2])};
    const double luma = Luma(c);
    const auto move = [=](double v) { return SrgbToLinear(luma + s * (v - luma)); };
    return {move(c[0]), move(c[1]), move(c[2])};
}

Colour Contrast(const Colour& c, double amount)
{
    const double exponent = std::exp2(amount / 100);
    return {Power(c[0], exponent), Power(c[1], exponent), Power(c[2], exponent)};
}

TEST(ExposureEffect, multipliesLinearLightByPowersOfTwo)
{
    for (const double stops : {-5.0, -1.3, -0.01, 0.01, 0.5, 1.0, 5.0})
        ExpectFormula(MakeSettings({MakeEffect("exposure", {{"stops", stops}})}),
                      [stops](const Colour& c, int, int) { return Expose(c, stops); });
}

TEST(ContrastEffect, turnsStopsFromMiddleGreyByAPower)
{
    for (const double amount : {-100.0, -20.0, 0.5, 35.0, 100.0})
        ExpectFormula(MakeSettings({MakeEffect("contrast", {{"amount", amount}})}),
                      [amount](const Colour& c, int, int) { return Contrast(c, amount); });
}

TEST(ContrastEffect, leavesMiddleGreyAndBlack)
{
    Image source = Image::Allocate(2, 1, Image::Depth::Bits16);
    for (int c = 0; c < 3; ++c)
        source.Row16(0)[4 + c] = 30235; // 18 % of linear light
    const auto settings = MakeSettings({MakeEffect("contrast", {{"amount", 100}})});

    const Image result = Renderer().Render(source, settings);

    EXPECT_EQ(GetChannel(result, 0, 0, 0), 0u);
    EXPECT_NEAR(GetChannel(result, 1, 0, 1), 30235, 1);
}

TEST(SaturationEffect, movesColoursFromTheirOwnLuma)
{
    for (const double amount : {-100.0, -30.0, 25.0, 100.0})
        ExpectFormula(MakeSettings({MakeEffect("saturation", {{"amount", amount}})}),
                      [amount](const Colour& c, int, int) { return Saturate(c, amount); });
}

TEST(SaturationEffect, givesGreyWithoutSaturation)
{
    const Image source = MakeRandomPicture(50, 20, Image::Depth::Bits8, 3);
    const Image result =
        Renderer().Render(source, MakeSettings({MakeEffect("saturation", {{"amount", -100}})}));

    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 50; ++x) {
            EXPECT_EQ(GetChannel(result, x, y, 0), GetChannel(result, x, y, 1));
            EXPECT_EQ(GetChannel(result, x, y, 1), GetChannel(result, x, y, 2));
        }
}

TEST(ChannelMixerEffect, multipliesByItsRows)
{
    const auto effect = MakeEffect("channelMixer", {{"rr", 0.7},
                                                    {"rg", 0.4},
                                                    {"rb", -0.1},
                                                    {"gr", 0.2},
                                                    {"gg", 1.1},
                                                    {"gb", -0.3},
                                                    {"br", -2.0},
                                                    {"bg", 1.0},
                                                    {"bb", 2.0}});
    ExpectFormula(MakeSettings({effect}), [](const Colour& c, int, int) -> Colour {
        return {0.7 * c[0] + 0.4 * c[1] - 0.1 * c[2], 0.2 * c[0] + 1.1 * c[1] - 0.3 * c[2],
                -2.0 * c[0] + c[1] + 2.0 * c[2]};
    });
}

TEST(BlackAndWhiteEffect, mixesTheWeightedGreyIn)
{
    const auto effect =
        MakeEffect("blackAndWhite", {{"amount", 75}, {"red", 0.9}, {"green", 0.3}, {"blue", -0.2}});
    ExpectFormula(MakeSettings({effect}), [](const Colour& c, int, int) -> Colour {
        const double grey = 0.9 * c[0] + 0.3 * c[1] - 0.2 * c[2];
        return {0.25 * c[0] + 0.75 * grey, 0.25 * c[1] + 0.75 * grey, 0.25 * c[2] + 0.75 * grey};
    });
}

TEST(BlackAndWhiteEffect, weighsByLuminanceUnlessToldOtherwise)
{
    ExpectFormula(MakeSettings({MakeEffect("blackAndWhite", {{"amount", 100}})}),
                  [](const Colour& c, int, int) -> Colour {
                      return {Luma(c), Luma(c), Luma(c)};
                  });
}

TEST(Effects, runUnclampedInTheirOrderAndAreRoundedOnce)
{
    const auto settings = MakeSettings(
        {MakeEffect("exposure", {{"stops", 1.5}}), MakeEffect("saturation", {{"amount", 60}}),
         MakeEffect("contrast", {{"amount", -40}}), MakeEffect("exposure", {{"stops", -1.1}})});
    ExpectFormula(settings, [](const Colour& c, int, int) {
        return Expose(Contrast(Saturate(Expose(c, 1.5), 60), -40), -1.1);
    });
}

TEST(Effects, areBlendedWithTheSourceBeforeRounding)
{
    for (const int blendAmount : {2, 52, 128, 254})
        ExpectFormula(MakeSettings({MakeEffect("exposure", {{"stops", -1}}),
                                    MakeEffect("contrast", {{"amount", 30}})},
                                   blendAmount),
                      [](const Colour& c, int, int) { return Contrast(Expose(c, -1), 30); });
}

} // namespace
} // namespace LumetraHost
