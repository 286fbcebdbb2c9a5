// SPDX-License-Identifier: GPL-2.0-or-later
// Pictures in spaces that are wider than sRGB.
#include "host/engine/EffectExamples.h"
#include "host/engine/ReferenceEffects.h"
#include "host/engine/TestPictures.h"
#include "host/engine/TestSpaces.h"

#include "engine/base/ColourMatrix.h"
#include "engine/run/ColourTable.h"
#include "engine/run/RenderPlan.h"
#include "engine/run/Renderer.h"
#include "image/Srgb.h"

#include "Zorvik/Exception.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>
#include <tuple>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectList;

constexpr int Width = 97;
constexpr int Height = 41;

class WideGamut : public testing::TestWithParam<std::tuple<std::size_t, Image::Depth>>
{
protected:
    const TestSpace& GetSpace() const { return GetTestSpaces()[std::get<0>(GetParam())]; }
    static Image::Depth GetDepth() { return std::get<1>(GetParam()); }
    static bool Is16Bit() { return GetDepth() == Image::Depth::Bits16; }

    Image MakePicture(unsigned seed = 1) const
    {
        return InSpace(MakeRandomPicture(Width, Height, GetDepth(), seed), GetSpace().space);
    }

    /// The formula's value of a pixel's channels, from 0 to white, not rounded.
    Colour GetExpected(const Image& source, int x, int y, const ReferenceFormula& formula) const
    {
        const double white = GetWhite(source);
        const ColourMatrix toSrgb{GetSpace().space->GetToSrgb()};
        Colour colour;
        for (int c = 0; c < 3; ++c)
            colour[std::size_t(c)] = GetSpace().Decode(GetChannel(source, x, y, c) / white);
        colour = toSrgb.Inverse().Transform(formula(toSrgb.Transform(colour), x, y));
        for (double& value : colour)
            value = white * GetSpace().Encode(value);
        return colour;
    }

    /// In steps of the depth.
    double FindLargestError(const Image& source, const Image& drawn,
                            const ReferenceFormula& formula) const
    {
        double largest = 0;
        for (int y = 0; y < Height; ++y)
            for (int x = 0; x < Width; ++x) {
                const Colour expected = GetExpected(source, x, y, formula);
                for (int c = 0; c < 3; ++c)
                    largest = std::max(
                        largest, std::abs(expected[std::size_t(c)] - GetChannel(drawn, x, y, c)));
                EXPECT_EQ(GetChannel(drawn, x, y, 3), GetChannel(source, x, y, 3));
            }
        return largest;
    }
};

std::string GetCaseName(const testing::TestParamInfo<std::tuple<std::size_t, Image::Depth>>& info)
{
    std::string name = GetTestSpaces()[std::get<0>(info.param)].name;
    name.erase(std::remove(name.begin(), name.end(), ' '), name.end());
    return name + (std::get<1>(info.param) == Image::Depth::Bits16 ? "Of16Bits" : "Of8Bits");
}

INSTANTIATE_TEST_SUITE_P(Spaces, WideGamut,
                         testing::Combine(testing::Values(0u, 1u, 2u),
                                          testing::Values(Image::Depth::Bits8,
                                                          Image::Depth::Bits16)),
                         GetCaseName);

/// Effects of which there is so little that nobody could see them.
EffectList MakeTraces()
{
    return {MakeEffect("exposure", {{"stops", 1e-5}}),
            MakeEffect("whiteBalance", {{"temperature", 6500.01}}),
            MakeEffect("contrast", {{"amount", 1e-3}}),
            MakeEffect("toneRegions", {{"shadows", 1e-3}, {"highlights", 1e-3}}),
            MakeEffect("toneCurve",
                       {{"points", 3}, {"x1", 50}, {"y1", 50.0001}, {"x2", 100}, {"y2", 100}}),
            MakeEffect("saturation", {{"amount", 1e-5}}),
            MakeEffect("vibrance", {{"amount", 1e-3}}),
            MakeEffect("channelMixer", {{"rg", 1e-7}}),
            MakeEffect("blackAndWhite", {{"amount", 1e-5}}),
            MakeEffect("splitToning", {{"shadowHue", 200}, {"shadowSaturation", 1e-3}}),
            MakeEffect("liftGammaGain", {{"slopeRed", 1.00001}}),
            MakeEffect("vignette", {{"amount", -1e-4}}),
            MakeEffect("grain", {{"amount", 1e-4}}),
            MakeEffect("sharpen", {{"amount", 1e-3}, {"radius", 0.2}}),
            MakeEffect("clarity", {{"amount", 1e-3}})};
}

TEST_P(WideGamut, coloursOutsideOfSrgbSurviveATraceOfEveryEffect)
{
    const Image source = MakePicture();
    const int step = Is16Bit() ? 257 : 1;
    for (const auto& effect : MakeTraces()) {
        const Image drawn = Renderer().Render(source, MakeSettings({effect}));
        ASSERT_FALSE(drawn.SharesPixelsWith(source)) << effect->GetEffectID();
        EXPECT_EQ(drawn.GetSpace(), source.GetSpace());
        int largest = 0;
        for (int y = 0; y < Height; ++y)
            for (int x = 0; x < Width; ++x)
                for (int c = 0; c < 4; ++c)
                    largest = std::max(largest, std::abs(int(GetChannel(drawn, x, y, c)) -
                                                         int(GetChannel(source, x, y, c))));
        EXPECT_LE(largest, step) << effect->GetEffectID();
    }
}

TEST_P(WideGamut, effectsFollowTheirFormulasOnTheColoursOfSrgb)
{
    const EffectList chain = {MakeEffect("whiteBalance", {{"temperature", 7200}}),
                              MakeEffect("contrast", {{"amount", 20}}),
                              MakeEffect("saturation", {{"amount", -25}})};
    const Image source = MakePicture();

    const Image drawn = Renderer().Render(source, MakeSettings(chain));

    // A plain power is steep near black, where single floats are coarse.
    const double tolerance = Is16Bit() ? (GetSpace().gamma == 0 ? 0.75 : 30) : 0.55;
    EXPECT_LE(FindLargestError(source, drawn, MakeReference(chain, Width, Height)), tolerance);
}

TEST_P(WideGamut, nothingToDrawIsTheSourceItself)
{
    const Image source = MakePicture();
    EXPECT_TRUE(Renderer().Render(source, MakeSettings({})).SharesPixelsWith(source));
    EXPECT_TRUE(Renderer()
                    .Render(source, MakeSettings({MakeEffect("exposure", {{"stops", 0}})}))
                    .SharesPixelsWith(source));
    EXPECT_TRUE(Renderer()
                    .Render(source, MakeSettings({MakeEffect("exposure", {{"stops", 1}})}, 255))
                    .SharesPixelsWith(source));
}

TEST_P(WideGamut, inSrgbIsTheFormulaClipped)
{
    const Image source = MakePicture();
    const Image srgb = Renderer().ToSrgb(source);
    const ColourMatrix toSrgb{GetSpace().space->GetToSrgb()};
    const double white = GetWhite(source);

    EXPECT_FALSE(srgb.GetSpace());
    double largest = 0;
    for (int y = 0; y < Height; ++y)
        for (int x = 0; x < Width; ++x) {
            Colour colour;
            for (int c = 0; c < 3; ++c)
                colour[std::size_t(c)] = GetSpace().Decode(GetChannel(source, x, y, c) / white);
            colour = toSrgb.Transform(colour);
            for (int c = 0; c < 3; ++c)
                largest = std::max(
                    largest,
                    std::abs(white * LinearToSrgb(std::clamp(colour[std::size_t(c)], 0.0, 1.0)) -
                             GetChannel(srgb, x, y, c)));
            EXPECT_EQ(GetChannel(srgb, x, y, 3), GetChannel(source, x, y, 3));
        }
    EXPECT_LE(largest, Is16Bit() ? 1 : 0.55);
}

TEST_P(WideGamut, neitherThreadsNorTilesNorPlaceChangeAnything)
{
    const EffectList effects = {MakeEffect("exposure", {{"stops", 0.3}}),
                                MakeEffect("clarity", {{"amount", 30}, {"radius", 3}}),
                                MakeEffect("vibrance", {{"amount", 30}})};
    ThreadPool pool(3);
    const Renderer renderer(pool);
    const Image source = MakePicture();
    for (const auto& list : {effects, EffectList{effects.front(), effects.back()}}) {
        RenderOptions options;
        options.threads = 1;
        const Image expected = renderer.Render(source, MakeSettings(list, 40), options);
        for (const int threads : {1, 2, 4})
            for (const int tilePixels : {64, 65, 1 << 20}) {
                options.threads = threads;
                options.tilePixels = tilePixels;
                EXPECT_TRUE(HaveSamePixels(renderer.Render(source, MakeSettings(list, 40), options),
                                           expected));
            }
    }
}

TEST_P(WideGamut, instructionSetsAgree)
{
    const EffectList chain = {MakeEffect("whiteBalance", {{"temperature", 5200}}),
                              MakeEffect("contrast", {{"amount", 20}}),
                              MakeEffect("vibrance", {{"amount", 30}})};
    const Image source = MakePicture();
    RenderOptions options;
    options.isa = Isa::Baseline;
    const Image expected = Renderer().Render(source, MakeSettings(chain), options);
    for (const Isa isa : GetSupportedIsas()) {
        options.isa = isa;
        const Image drawn = Renderer().Render(source, MakeSettings(chain), options);
        for (int y = 0; y < Height; ++y)
            for (int x = 0; x < Width; ++x)
                for (int c = 0; c < 3; ++c)
                    ASSERT_NEAR(GetChannel(drawn, x, y, c), GetChannel(expected, x, y, c),
                                Is16Bit() ? 64 : 1)
                        << GetIsaName(isa);
    }
}

TEST_P(WideGamut, tablesAreWithinAStepOfTheExactRun)
{
    if (Is16Bit())
        return; // tables are for 8 bits
    const EffectList chain = {MakeEffect("whiteBalance", {{"temperature", 6900}}),
                              MakeEffect("contrast", {{"amount", 10}}),
                              MakeEffect("saturation", {{"amount", 10}}),
                              MakeEffect("contrast", {{"amount", -5}})};
    const Image source = MakePicture();
    const Image exact = Renderer().Render(source, MakeSettings(chain));
    for (const int points : {ColourTable::DragPoints, ColourTable::ExportPoints}) {
        const auto table = ColourTable::Make(chain, points, GetDefaultIsa(),
                                             ThreadPool::GetShared(), nullptr, GetSpace().space);
        // Plain powers bend sharply near black: tables of them are often refused.
        EXPECT_TRUE(table || GetSpace().gamma != 0) << points;
        if (!table)
            continue;
        const Image drawn = Renderer().Render(source, table, 1);
        EXPECT_EQ(drawn.GetSpace(), GetSpace().space);
        for (int y = 0; y < Height; ++y)
            for (int x = 0; x < Width; ++x)
                for (int c = 0; c < 3; ++c)
                    ASSERT_NEAR(GetChannel(drawn, x, y, c), GetChannel(exact, x, y, c), 1);
    }
}

TEST(WideGamutPlan, takesEqualFactorsOfAllChannelsForOne)
{
    const TestSpace& p3 = GetTestSpaces().front();
    const RenderPlan plan({MakeEffect("exposure", {{"stops", 1}})},
                          {Isa::Baseline, PictureArea::Whole(1, 1), Image::Depth::Bits8, p3.space});

    const auto chains = plan.MakeChains(ChainEnd::Pixels);

    // All of it has become the table that pixels are loaded with.
    EXPECT_TRUE(chains.front().GetStages().empty());
}

TEST(WideGamutBlend, refusesPicturesOfTwoSpaces)
{
    const Image srgb = MakeRandomPicture(8, 8, Image::Depth::Bits8, 1);
    const Image p3 = InSpace(srgb.Clone(), GetTestSpaces().front().space);

    EXPECT_THROW(Renderer().Interpolate(srgb, p3, 100), Zorvik::Exception);
}

} // namespace
} // namespace LumetraHost
