// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/ReferenceEffects.h"
#include "host/engine/TestPictures.h"

#include "engine/run/Renderer.h"

#include <gtest/gtest.h>

namespace LumetraHost {
namespace {

Image MakeColour(unsigned red, unsigned green, unsigned blue)
{
    Image image = Image::Allocate(1, 1, Image::Depth::Bits8);
    image.Row(0)[0] = static_cast<std::uint8_t>(red);
    image.Row(0)[1] = static_cast<std::uint8_t>(green);
    image.Row(0)[2] = static_cast<std::uint8_t>(blue);
    return image;
}

int GetSpread(const Image& image)
{
    return int(GetChannel(image, 0, 0, 0)) - int(GetChannel(image, 0, 0, 2));
}

TEST(VibranceEffect, saturatesByTheFormula)
{
    for (const double amount : {-100.0, -35.0, 20.0, 100.0})
        ExpectReference(MakeEffect("vibrance", {{"amount", amount}}));
}

TEST(VibranceEffect, reachesMutedColoursMoreThanPureOnes)
{
    const auto settings = MakeSettings({MakeEffect("vibrance", {{"amount", 100}})});
    const Image muted = MakeColour(140, 128, 120);
    const Image pure = MakeColour(250, 30, 0);

    const int mutedGain = GetSpread(Renderer().Render(muted, settings)) - GetSpread(muted);
    const int pureGain = GetSpread(Renderer().Render(pure, settings)) - GetSpread(pure);

    EXPECT_GT(mutedGain, 10);
    EXPECT_EQ(pureGain, 0);
}

TEST(SplitToningEffect, tintsByTheFormula)
{
    ExpectReference(MakeEffect("splitToning", {{"shadowHue", 220},
                                               {"shadowSaturation", 40},
                                               {"highlightHue", 45},
                                               {"highlightSaturation", 60}}));
    ExpectReference(MakeEffect("splitToning",
                               {{"shadowHue", 359}, {"shadowSaturation", 100}, {"balance", 100}}));
    ExpectReference(MakeEffect(
        "splitToning", {{"highlightHue", 170}, {"highlightSaturation", 25}, {"balance", -70}}));
}

TEST(SplitToningEffect, leavesBlackAndWhite)
{
    const auto settings = MakeSettings({MakeEffect("splitToning", {{"shadowHue", 240},
                                                                   {"shadowSaturation", 100},
                                                                   {"highlightHue", 30},
                                                                   {"highlightSaturation", 100}})});
    for (const unsigned grey : {0u, 255u}) {
        const Image result = Renderer().Render(MakeColour(grey, grey, grey), settings);
        for (int c = 0; c < 3; ++c)
            EXPECT_EQ(GetChannel(result, 0, 0, c), grey);
    }
    const Image dark = Renderer().Render(MakeColour(60, 60, 60), settings);
    EXPECT_GT(GetChannel(dark, 0, 0, 2), GetChannel(dark, 0, 0, 0) + 30);
    const Image bright = Renderer().Render(MakeColour(200, 200, 200), settings);
    EXPECT_GT(GetChannel(bright, 0, 0, 0), GetChannel(bright, 0, 0, 2) + 30);
}

TEST(LiftGammaGainEffect, isTheColourDecisionList)
{
    for (const double clamp : {0.0, 1.0}) {
        ExpectReference(MakeEffect("liftGammaGain", {{"slopeRed", 1.2},
                                                     {"slopeGreen", 0.9},
                                                     {"offsetRed", -0.05},
                                                     {"offsetBlue", 0.1},
                                                     {"powerRed", 0.8},
                                                     {"powerGreen", 1.3},
                                                     {"powerBlue", 2.2},
                                                     {"saturation", 1.25},
                                                     {"clamp", clamp}}));
        ExpectReference(MakeEffect(
            "liftGammaGain",
            {{"slopeBlue", 1.7}, {"offsetGreen", 0.2}, {"saturation", 0.4}, {"clamp", clamp}}));
        ExpectReference(MakeEffect(
            "liftGammaGain",
            {{"slopeRed", 0}, {"powerGreen", 10}, {"powerBlue", 0.1}, {"clamp", clamp}}));
    }
}

TEST(LiftGammaGainEffect, keepsHeadroomUnlessItClamps)
{
    const auto brighter = MakeEffect("exposure", {{"stops", 2}});
    const auto darker = MakeEffect("exposure", {{"stops", -2}});
    const auto lift = MakeEffect("liftGammaGain", {{"powerBlue", 1.001}});
    const auto clamping = MakeEffect("liftGammaGain", {{"powerBlue", 1.001}, {"clamp", 1}});
    const Image white = MakeColour(255, 255, 255);

    const Image kept = Renderer().Render(white, MakeSettings({brighter, lift, darker}));
    const Image cut = Renderer().Render(white, MakeSettings({brighter, clamping, darker}));

    EXPECT_EQ(GetChannel(kept, 0, 0, 0), 255u);
    EXPECT_EQ(GetChannel(cut, 0, 0, 0), 137u); // a quarter of linear light
}

} // namespace
} // namespace LumetraHost
