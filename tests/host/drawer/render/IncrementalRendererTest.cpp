// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestPictures.h"
#include "host/engine/TestSpaces.h"

#include "drawer/render/IncrementalRenderer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <tuple>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectList;
using Zorvik::Quindle::EffectPtr;

class Incremental : public testing::TestWithParam<std::tuple<Image::Depth, int>>
{
protected:
    static Image MakeSource(unsigned seed)
    {
        const auto [depth, space] = GetParam();
        Image picture = MakeRandomPicture(333, 70, depth, seed);
        if (space >= 0)
            picture.SetSpace(GetTestSpaces()[static_cast<std::size_t>(space)].space);
        return picture;
    }

    /// Renders and compares with rendering from the beginning.
    void Render(const EffectList& effects, int blendAmount = 1)
    {
        Render(MakeSettings(effects, blendAmount), {});
    }

    void Render(const Zorvik::Quindle::EffectsSettings& settings, const RenderOptions& options)
    {
        const Image picture = m_incremental.Render(m_source, settings, options, {});
        EXPECT_TRUE(HaveSamePixels(picture, m_renderer.Render(m_source, settings, options)));
    }

    /// True when rendering the effects starts from kept floats: the source's pixels are exchanged
    /// without the renderer's knowledge, and the result is that of the old pixels. Nothing can be
    /// rendered afterwards.
    bool StartsFromKept(const EffectList& effects)
    {
        const auto settings = MakeSettings(effects);
        const Image before = m_renderer.Render(m_source, settings);
        const Image others = MakeSource(99);
        for (int y = 0; y < m_source.GetHeight(); ++y)
            std::copy_n(others.Row(y), m_source.GetStride(), m_source.Row(y));
        return HaveSameColours(m_incremental.Render(m_source, settings, {}, {}), before);
    }

    /// Compares colours only: alpha is always that of the source.
    static bool HaveSameColours(const Image& first, const Image& second)
    {
        for (int y = 0; y < first.GetHeight(); ++y)
            for (int x = 0; x < first.GetWidth(); ++x)
                for (int channel = 0; channel < 3; ++channel)
                    if (GetChannel(first, x, y, channel) != GetChannel(second, x, y, channel))
                        return false;
        return true;
    }

    static EffectPtr Exposure(double stops) { return MakeEffect("exposure", {{"stops", stops}}); }
    static EffectPtr Contrast(double amount)
    {
        return MakeEffect("contrast", {{"amount", amount}});
    }
    static EffectPtr Vibrance(double amount)
    {
        return MakeEffect("vibrance", {{"amount", amount}});
    }
    static EffectPtr Mixer(double green)
    {
        return MakeEffect("channelMixer", {{"rg", green / 100}});
    }
    static EffectPtr Saturation(double amount)
    {
        return MakeEffect("saturation", {{"amount", amount}});
    }
    static EffectPtr Slope(double slope)
    {
        return MakeEffect("liftGammaGain", {{"slopeRed", slope}});
    }
    static EffectPtr Vignette(double amount)
    {
        return MakeEffect("vignette", {{"amount", amount}});
    }

    const Renderer m_renderer;
    IncrementalRenderer m_incremental{m_renderer};
    Image m_source = MakeSource(5);
};

// sRGB, Display P3, which has the curves of sRGB, and Adobe RGB.
INSTANTIATE_TEST_SUITE_P(DepthsAndSpaces, Incremental,
                         testing::Combine(testing::Values(Image::Depth::Bits8,
                                                          Image::Depth::Bits16),
                                          testing::Values(-1, 0, 1)));

TEST_P(Incremental, startsAtTheEffectThatChangesAgain)
{
    const EffectPtr first = Exposure(0.4);
    const EffectPtr second = Vibrance(20);
    Render({first, second, Slope(1.1), Vignette(-1)});
    Render({first, second, Slope(1.2), Vignette(-1)});
    Render({first, second, Slope(0.7), Vignette(-1)}, 90);
    // Effects are compared by their settings; they need not be one object.
    EXPECT_TRUE(StartsFromKept({Exposure(0.4), Vibrance(20), Slope(0.9), Vignette(-1)}));
}

TEST_P(Incremental, startsFromTheBeginningWhenAnEffectChangesForTheFirstTime)
{
    Render({Exposure(0.4), Vibrance(20), Slope(1.1)});
    EXPECT_FALSE(StartsFromKept({Exposure(0.4), Vibrance(20), Slope(1.2)}));
}

TEST_P(Incremental, goesOnFromWhereItWasWhenALaterEffectChanges)
{
    const auto make = [](double slope, double vignette) {
        return EffectList{Exposure(0.4), Vibrance(20), Slope(slope), Vignette(vignette)};
    };
    Render(make(1.1, -1));
    Render(make(1.2, -1));
    Render(make(1.2, -2));
    EXPECT_TRUE(StartsFromKept(make(1.2, -1.5)));
}

TEST_P(Incremental, startsBehindAllEffectsWhileTheBlendChanges)
{
    const EffectList effects = {Exposure(0.4), Vibrance(20), Vignette(-1)};
    for (const int amount : {1, 40, 50, 60})
        Render(effects, amount);
    EXPECT_TRUE(StartsFromKept(effects));
}

TEST_P(Incremental, startsAgainWhenAnEarlierEffectChanges)
{
    const auto make = [](double stops, double slope) {
        return EffectList{Exposure(stops), Vibrance(20), Slope(slope)};
    };
    Render(make(0.4, 1));
    Render(make(0.4, 1.1));
    EXPECT_FALSE(StartsFromKept(make(0.5, 1.1)));
}

TEST_P(Incremental, splitsNoMatricesThatAreOne)
{
    const auto make = [](double green) {
        return EffectList{Vibrance(20), Exposure(0.4), Mixer(green), Slope(1.1)};
    };
    Render(make(1));
    Render(make(2));
    Render(make(3));
    // Without the effect between, the pictures around it meet.
    Render({Exposure(0.4), Vibrance(30), Mixer(10)});
    Render({Exposure(0.4), Vibrance(31), Mixer(10)});
    Render({Exposure(0.4), Vibrance(0), Mixer(10)});
    Render({Exposure(0.4), Vibrance(31), Mixer(10)});
}

TEST_P(Incremental, startsAgainWithAnotherPictureOrArea)
{
    const auto make = [](double slope) { return EffectList{Vibrance(20), Slope(slope)}; };
    Render(make(1.1));
    Render(make(1.2));
    m_source = MakeSource(6);
    Render(make(1.3));
    Render(make(1.4));
    RenderOptions options;
    options.area = PictureArea::Whole(1000, 500);
    Render(MakeSettings(make(1.5)), options);
    Render(MakeSettings({Vibrance(20), Vignette(1)}), options);
    Render(MakeSettings({Vibrance(20), Vignette(2)}), options);
    Render({Vibrance(20), Vignette(2)});
}

TEST_P(Incremental, rendersSpatialEffectsFromTheBeginning)
{
    const auto make = [](double slope) {
        return EffectList{Vibrance(20), MakeEffect("clarity", {{"amount", 40}}), Slope(slope)};
    };
    Render(make(1.1));
    Render(make(1.2));
    EXPECT_FALSE(StartsFromKept(make(1.3)));
}

TEST_P(Incremental, keepsNothingOfACancelledRendering)
{
    const auto make = [](double slope) { return EffectList{Vibrance(20), Slope(slope)}; };
    Render(make(1.1));
    CancelToken cancel;
    cancel.Cancel();
    RenderOptions options;
    options.cancel = &cancel;
    EXPECT_TRUE(m_incremental.Render(m_source, MakeSettings(make(1.2)), options, {}).IsNull());
    EXPECT_FALSE(StartsFromKept(make(1.3)));
}

TEST_P(Incremental, keepsWhatWasThereBeforeACancelledRendering)
{
    const auto make = [](double slope) { return EffectList{Vibrance(20), Slope(slope)}; };
    Render(make(1.1));
    Render(make(1.2));
    CancelToken cancel;
    cancel.Cancel();
    RenderOptions options;
    options.cancel = &cancel;
    EXPECT_TRUE(m_incremental.Render(m_source, MakeSettings(make(1.5)), options, {}).IsNull());
    EXPECT_TRUE(StartsFromKept(make(1.6)));
}

// With 8 bits, contrast, the conversion and slope are drawn from one table.
TEST_P(Incremental, splitsNoStagesThatTakeEachChannelAlone)
{
    const auto make = [](double slope) {
        return EffectList{Vibrance(20), Contrast(20), Slope(slope), Vibrance(30)};
    };
    Render(make(1.1));
    Render(make(1.2));
    Render(make(1.3));
}

// With 8 bits, the slope is drawn while pixels are stored, unless they are blended.
TEST_P(Incremental, splitsNoStageFromTheStoringOfItsPixels)
{
    const EffectList effects = {Vibrance(20), Saturation(10), Slope(1.1)};
    Render({Vibrance(20), Saturation(10), Slope(1.2)});
    Render(effects, 90);
    Render(effects, 91);
    for (const int amount : {1, 90, 91, 1})
        Render(effects, amount);
}

// In a space of its own, a picture comes out of factors alone as from one table.
TEST_P(Incremental, splitsNoMatricesFromTheWayToTheColoursOfSrgb)
{
    Render({Exposure(0.4), Exposure(0.1)});
    Render({Exposure(0.4), Exposure(0.2)});
    Render({Exposure(0.4), Exposure(0.3)});
    Render({Exposure(0.4)}, 90);
    Render({Exposure(0.4)}, 91);
    Render({Exposure(0.4)}, 1);
}

TEST_P(Incremental, isRightWhateverChanges)
{
    std::mt19937 random(7);
    const auto draw = [&random](double scale) {
        return random() % 4 == 0 ? 0.0 : scale * (double(random() % 200) / 100 - 1);
    };
    double values[7] = {0.3, 20, 10, 5, -1, 0.1, 1};
    for (int round = 0; round < 100; ++round) {
        const std::size_t which = random() % 7;
        const double scales[] = {1, 50, 50, 50, 3, 0.2, 0};
        values[which] = which == 6 ? double(1 + random() % 255) : draw(scales[which]);
        Render({Exposure(values[0]), Contrast(values[1]), Slope(1 + values[5]),
                Saturation(values[2]), MakeEffect("vibrance", {{"amount", values[3]}}),
                Vignette(values[4])},
               static_cast<int>(values[6]));
    }
}

} // namespace
} // namespace LumetraHost
