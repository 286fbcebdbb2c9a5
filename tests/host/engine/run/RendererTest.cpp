// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestPictures.h"

#include "engine/effects/EffectKinds.h"
#include "engine/run/Renderer.h"

#include "Zorvik/Exception.h"
#include "Zorvik/Quindle/EffectSettingsImpl.h"
#include "Zorvik/RefCounted.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectPtr;
using Zorvik::Quindle::EffectSettingsImpl;

class RendererAtDepth : public testing::TestWithParam<Image::Depth>
{
protected:
    const Image m_source = MakeRandomPicture(333, 70, GetParam(), 11);
    const Renderer m_renderer;
};

INSTANTIATE_TEST_SUITE_P(Depths, RendererAtDepth,
                         testing::Values(Image::Depth::Bits8, Image::Depth::Bits16));

/// An effect whose parameters all have one value, whatever it is.
class FixedEffect : public Zorvik::RefCounted<Zorvik::Quindle::IEffectSettings>
{
public:
    FixedEffect(std::string id, double value) : m_id(std::move(id)), m_value(value) {}

    const std::string& GetEffectID() const override { return m_id; }
    EffectPtr Clone() const override { return new FixedEffect(m_id, m_value); }
    bool HasParameter(const std::string&) const override { return true; }
    double GetParameter(const std::string&) const override { return m_value; }
    void SetParameter(const std::string&, double) override {}
    void Serialize(const Zorvik::Brassel::SerializerPtr&) const override {}
    void Deserialize(const Zorvik::Brassel::ConstSerializerPtr&) override {}

private:
    std::string m_id;
    double m_value;
};

TEST_P(RendererAtDepth, givesTheSourceBitForBitAtBlendAmount255)
{
    const auto exposure = MakeEffect("exposure", {{"stops", 2}});
    for (const int amount : {255, 256, std::numeric_limits<int>::max()}) {
        const Image result = m_renderer.Render(m_source, MakeSettings({exposure}, amount));
        EXPECT_TRUE(HaveSamePixels(result, m_source)) << amount;
    }
}

TEST_P(RendererAtDepth, countsBlendAmountsBelow1AsFullEffect)
{
    const auto exposure = MakeEffect("exposure", {{"stops", 2}});
    const Image full = m_renderer.Render(m_source, MakeSettings({exposure}, 1));
    EXPECT_FALSE(HaveSamePixels(full, m_source));
    for (const int amount : {0, -7, std::numeric_limits<int>::min()})
        EXPECT_TRUE(
            HaveSamePixels(m_renderer.Render(m_source, MakeSettings({exposure}, amount)), full));
}

TEST_P(RendererAtDepth, givesTheSourceForEffectsAtTheirDefaults)
{
    for (const EffectKind& kind : EffectKinds::GetAll()) {
        const auto settings = MakeSettings({MakeEffect(kind.descriptor.effectID, {})});
        EXPECT_TRUE(HaveSamePixels(m_renderer.Render(m_source, settings), m_source))
            << kind.descriptor.effectID;
    }
}

TEST_P(RendererAtDepth, changesNoPixelThatGoesThroughLinearLightUnchanged)
{
    const auto there = MakeEffect("exposure", {{"stops", 1}});
    const auto back = MakeEffect("exposure", {{"stops", -1}});
    const auto mixer = MakeEffect("channelMixer", {{"rg", 1e-9}});
    const Image result = m_renderer.Render(m_source, MakeSettings({there, mixer, back}));

    EXPECT_FALSE(result.SharesPixelsWith(m_source));
    EXPECT_TRUE(HaveSamePixels(result, m_source));
}

TEST_P(RendererAtDepth, clampsParametersToTheirRange)
{
    RegisterEffects();
    for (const EffectKind& kind : EffectKinds::GetAll()) {
        const std::string& id = kind.descriptor.effectID;
        EffectPtr largest = EffectSettingsImpl::Create(id);
        for (const auto& parameter : kind.descriptor.parameters)
            largest->SetParameter(parameter.name, parameter.maximum);
        const Image expected = m_renderer.Render(m_source, MakeSettings({largest}));
        for (const double value : {1e30, std::numeric_limits<double>::infinity()}) {
            const EffectPtr effect = new FixedEffect(id, value);
            EXPECT_TRUE(
                HaveSamePixels(m_renderer.Render(m_source, MakeSettings({effect})), expected))
                << id << " " << value;
        }
    }
}

TEST_P(RendererAtDepth, countsNanAsTheDefault)
{
    for (const EffectKind& kind : EffectKinds::GetAll()) {
        const EffectPtr effect = new FixedEffect(kind.descriptor.effectID, std::nan(""));
        EXPECT_TRUE(HaveSamePixels(m_renderer.Render(m_source, MakeSettings({effect})), m_source));
    }
}

TEST_P(RendererAtDepth, survivesLongChainsOfExtremes)
{
    Zorvik::Quindle::EffectList effects;
    for (int i = 0; i < 40; ++i) {
        effects.push_back(MakeEffect("exposure", {{"stops", 5}}));
        effects.push_back(MakeEffect("contrast", {{"amount", 100}}));
        effects.push_back(MakeEffect("saturation", {{"amount", 100}}));
    }
    const Image result = m_renderer.Render(m_source, MakeSettings(effects));
    EXPECT_EQ(GetChannel(result, 0, 0, 0), 0u);
    EXPECT_EQ(GetChannel(result, 1, 0, 1), GetWhite(result));
}

TEST_P(RendererAtDepth, leavesUnknownEffectsOut)
{
    const auto exposure = MakeEffect("exposure", {{"stops", -1}});
    const auto unknown = EffectSettingsImpl::Create("solarise");
    const Image expected = m_renderer.Render(m_source, MakeSettings({exposure}));

    const Image result = m_renderer.Render(m_source, MakeSettings({unknown, exposure, unknown}));

    EXPECT_TRUE(HaveSamePixels(result, expected));
}

TEST_P(RendererAtDepth, usesMemoryAgainThatNobodyElseHolds)
{
    const auto settings = MakeSettings({MakeEffect("exposure", {{"stops", 1}})});
    Image recycled = Image::Allocate(333, 70, GetParam());
    const auto* const bytes = std::as_const(recycled).Row(0);

    const Image result = m_renderer.Render(m_source, settings, {}, std::move(recycled));
    EXPECT_EQ(result.Row(0), bytes);

    const Image held = result;
    const Image other = m_renderer.Render(m_source, settings, {}, result);
    EXPECT_FALSE(other.SharesPixelsWith(held));
    EXPECT_TRUE(HaveSamePixels(other, held));
}

TEST_P(RendererAtDepth, interpolatesFinishedPicturesInIntegers)
{
    const Image effect = MakeRandomPicture(333, 70, GetParam(), 12);
    for (const int b : {1, 2, 77, 128, 254, 255}) {
        const Image result = m_renderer.Interpolate(m_source, effect, b);
        int wrong = 0;
        for (int y = 0; y < 70; ++y)
            for (int x = 0; x < 333; ++x)
                for (int c = 0; c < 4; ++c) {
                    const unsigned s = GetChannel(m_source, x, y, c);
                    const unsigned e = GetChannel(effect, x, y, c);
                    const unsigned sum = s * unsigned(b - 1) + e * unsigned(255 - b);
                    wrong += GetChannel(result, x, y, c) != (sum + 127) / 254;
                }
        EXPECT_EQ(wrong, 0) << b;
    }
}

TEST_P(RendererAtDepth, interpolatesWithinOneStepOfTheDirectRendering)
{
    const auto exposure = MakeEffect("exposure", {{"stops", 1.2}});
    const Image effect = m_renderer.Render(m_source, MakeSettings({exposure}));
    for (const int b : {20, 128, 230}) {
        const Image tick = m_renderer.Interpolate(m_source, effect, b);
        const Image direct = m_renderer.Render(m_source, MakeSettings({exposure}, b));
        int largest = 0;
        for (int y = 0; y < 70; ++y)
            for (int x = 0; x < 333; ++x)
                for (int c = 0; c < 4; ++c)
                    largest = std::max(largest, std::abs(int(GetChannel(tick, x, y, c)) -
                                                         int(GetChannel(direct, x, y, c))));
        EXPECT_LE(largest, 1) << b;
    }
}

TEST(Renderer, givesNothingForANullPicture)
{
    EXPECT_TRUE(Renderer().Render(Image(), MakeSettings({})).IsNull());
}

TEST(Renderer, givesNothingWhenCancelled)
{
    CancelToken cancel;
    cancel.Cancel();
    RenderOptions options;
    options.cancel = &cancel;
    const Image source = MakeRandomPicture(64, 64, Image::Depth::Bits8, 1);
    const auto settings = MakeSettings({MakeEffect("exposure", {{"stops", 1}})});

    EXPECT_TRUE(Renderer().Render(source, settings, options).IsNull());
}

TEST(Renderer, refusesToInterpolateDifferentSizes)
{
    const Image one = Image::Allocate(4, 4, Image::Depth::Bits8);
    const Image other = Image::Allocate(4, 5, Image::Depth::Bits8);
    EXPECT_THROW(Renderer().Interpolate(one, other, 100), Zorvik::Exception);
}

} // namespace
} // namespace LumetraHost
