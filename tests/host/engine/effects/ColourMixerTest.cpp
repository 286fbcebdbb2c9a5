// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/HueChart.h"
#include "host/engine/ReferenceEffects.h"
#include "host/engine/ReferenceFormulas.h"
#include "host/engine/TestPictures.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectPtr;

constexpr double Step16 = 1.0 / 65535;

EffectPtr MakeMixer(const std::string& parameter, double amount)
{
    return MakeEffect("colourMixer", {{parameter.c_str(), amount}});
}

/// Neighbouring hues get opposite numbers at the ends of their ranges.
EffectPtr MakeExtremeMixer()
{
    const EffectPtr effect = MakeEffect("colourMixer", {});
    double amount = 100;
    for (const NamedHue& hue : GetNamedHues()) {
        for (const char* const number : {"Hue", "Saturation", "Luminance"})
            effect->SetParameter(hue.name + number, amount);
        amount = -amount;
    }
    return effect;
}

using Measure = std::function<double(const Colour& drawn, double degrees)>;

/// Expects each hue to be moved by its own parameter, further with every step of the amount.
void ExpectOrder(const std::string& number, const Measure& measure)
{
    for (const NamedHue& hue : GetNamedHues()) {
        const Colour colour = MakeHue(hue.degrees);
        double before = -1e9;
        for (const double amount : {-100.0, -50.0, -10.0, 0.0, 10.0, 50.0, 100.0}) {
            const Colour drawn = DrawColour(colour, MakeMixer(hue.name + number, amount));
            const double seen = measure(drawn, hue.degrees);
            EXPECT_GT(seen, before + 0.001) << hue.name << number << ' ' << amount;
            before = seen;
        }
    }
}

TEST(ColourMixerEffect, mixesByTheFormula)
{
    ExpectReference(MakeEffect("colourMixer", {{"blueHue", 30}, {"orangeSaturation", -40}}));
    ExpectReference(MakeEffect("colourMixer", {{"redHue", -100},
                                               {"magentaHue", 100},
                                               {"greenSaturation", 100},
                                               {"aquaLuminance", -100},
                                               {"purpleLuminance", 60}}));
    ExpectReference(MakeExtremeMixer());
}

TEST(ColourMixerEffect, leavesGreysToTheBit)
{
    ExpectGreysStay(MakeExtremeMixer());
}

TEST(ColourMixerEffect, movesTheNamedHueAndNotItsOpposite)
{
    for (const NamedHue& hue : GetNamedHues())
        for (const char* const number : {"Hue", "Saturation", "Luminance"}) {
            const std::vector<Colour> chart =
                ReadChart(MakeChart({MakeHue(hue.degrees), MakeHue(hue.degrees + 180)}));
            const auto drawn = DrawChart(chart, MakeMixer(hue.name + number, 50));
            EXPECT_NE(drawn[0], chart[0]) << hue.name << number;
            EXPECT_EQ(drawn[1], chart[1]) << hue.name << number;
        }
}

TEST(ColourMixerEffect, reachesHalfWayToTheNeighbours)
{
    const auto& hues = GetNamedHues();
    for (std::size_t i = 0; i < hues.size(); ++i) {
        const double next = i + 1 < hues.size() ? hues[i + 1].degrees : 360;
        const Colour between = MakeHue((hues[i].degrees + next) / 2);
        const EffectPtr mixer = MakeMixer(hues[i].name + "Saturation", -100);
        EXPECT_NEAR(MeasureChroma(DrawColour(between, mixer)), 0.2, 3 * Step16) << hues[i].name;
        EXPECT_EQ(DrawColour(MakeHue(next), mixer), ReadChart(MakeChart({MakeHue(next)})).front());
    }
}

TEST(ColourMixerEffect, turnsHuesFurtherWithTheAmount)
{
    ExpectOrder("Hue", MeasureTurn);
}

TEST(ColourMixerEffect, saturatesFurtherWithTheAmount)
{
    ExpectOrder("Saturation", [](const Colour& drawn, double) { return MeasureChroma(drawn); });
}

TEST(ColourMixerEffect, lightensFurtherWithTheAmount)
{
    ExpectOrder("Luminance", [](const Colour& drawn, double) { return Luma(drawn); });
}

TEST(ColourMixerEffect, keepsTheLumaOfWhatItTurnsAndSaturates)
{
    std::vector<Colour> chart;
    for (int degrees = 0; degrees < 360; degrees += 3)
        chart.push_back(MakeHue(degrees, 0.45, 0.15));
    const EffectPtr effect = MakeEffect("colourMixer", {});
    for (const NamedHue& hue : GetNamedHues()) {
        effect->SetParameter(hue.name + "Hue", hue.degrees < 200 ? 100 : -70);
        effect->SetParameter(hue.name + "Saturation", hue.degrees < 100 ? 60 : -60);
    }
    const auto drawn = DrawChart(chart, effect);
    for (std::size_t i = 0; i < chart.size(); ++i)
        EXPECT_NEAR(Luma(drawn[i]), Luma(chart[i]), 2 * Step16) << 3 * i << " degrees";
}

TEST(ColourMixerEffect, neverTurnsTheOrderOfHues)
{
    std::vector<Colour> chart;
    for (int i = 0; i <= 720; ++i)
        chart.push_back(MakeHue(i / 2.0, 0.5, 0.2));
    for (const double first : {-100.0, 100.0}) {
        const EffectPtr effect = MakeEffect("colourMixer", {});
        double amount = first;
        for (const NamedHue& hue : GetNamedHues()) {
            effect->SetParameter(hue.name + "Hue", amount);
            amount = -amount;
        }
        const auto drawn = DrawChart(chart, effect);
        for (std::size_t i = 1; i < chart.size(); ++i)
            EXPECT_GT(MeasureTurn(drawn[i], MeasureHue(drawn[i - 1])), -0.01) << i / 2.0;
    }
}

TEST(ColourMixerEffect, reachesColoursOutsideOfTheRangeWithoutJumps)
{
    ExpectNoJumps(MakeExtremeMixer(), 20);
}

} // namespace
} // namespace LumetraHost
