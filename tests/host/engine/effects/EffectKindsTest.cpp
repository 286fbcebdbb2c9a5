// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/EffectKinds.h"

#include "engine/run/Renderer.h"
#include "host/engine/TestPictures.h"
#include "host/engine/TestTables.h"

#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/EffectSettingsImpl.h"

#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <vector>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectPtr;

/// Each effect where it changes nothing although its other parameters are far from their defaults.
std::vector<EffectPtr> MakeNeutralEffects()
{
    const auto curve = MakeRandomTable(LookUpTable::Kind::Curve, 50, 1);
    const auto cube = MakeRandomTable(LookUpTable::Kind::Cube, 9, 2);
    const EffectPtr tables = MakeLut3d(&curve, &cube);
    tables->SetParameter("strength", 0);
    return {tables,
            MakeEffect("exposure", {{"stops", 0}}),
            MakeEffect("contrast", {{"amount", 0}}),
            MakeEffect("toneRegions", {{"shadows", 0}, {"whites", 0}}),
            MakeEffect("toneCurve", {{"points", 4},
                                     {"x1", 25},
                                     {"y1", 25},
                                     {"x2", 60},
                                     {"y2", 60},
                                     {"x3", 100},
                                     {"y3", 100}}),
            MakeEffect("toneCurve", {{"greenPoints", 2}, {"greenX1", 100}, {"greenY1", 100}}),
            MakeEffect("whiteBalance", {{"temperature", 6500}, {"tint", 0}}),
            MakeEffect("saturation", {{"amount", 0}}),
            MakeEffect("vibrance", {{"amount", 0}}),
            MakeEffect("channelMixer", {{"rr", 1}, {"gb", 0}}),
            MakeEffect("blackAndWhite", {{"amount", 0}, {"red", 1}, {"green", -1}}),
            MakeEffect("splitToning", {{"shadowHue", 200}, {"highlightHue", 40}, {"balance", 50}}),
            MakeEffect("liftGammaGain", {{"slopeRed", 1}, {"powerBlue", 1}, {"saturation", 1}}),
            MakeEffect("vignette", {{"amount", 0}, {"size", 10}, {"roundness", 100}}),
            MakeEffect("vignette", {{"amount", -3}, {"size", 100}, {"feather", 0}}),
            MakeEffect("grain", {{"amount", 0}, {"size", 3}, {"seed", 9}}),
            MakeEffect("gaussianBlur", {{"radius", 0}}),
            MakeEffect("sharpen", {{"amount", 0}, {"radius", 0.2}, {"threshold", 5}}),
            MakeEffect("clarity", {{"amount", 0}, {"radius", 3}})};
}

void ExpectSamePixels(const Image& seen, const Image& expected, const std::string& place)
{
    const std::size_t bytes =
        static_cast<std::size_t>(expected.GetWidth()) * expected.GetBytesPerPixel();
    int others = 0;
    for (int y = 0; y < expected.GetHeight(); ++y)
        others += std::memcmp(seen.Row(y), expected.Row(y), bytes) != 0;
    EXPECT_EQ(others, 0) << "rows of " << place;
}

class NeutralEffects : public testing::TestWithParam<Image::Depth>
{
protected:
    NeutralEffects() { RegisterEffects(); }

    const Image m_photo = MakeRandomPicture(120, 70, GetParam(), 3);
};

TEST(EffectKinds, areRegisteredWithTheirParameters)
{
    RegisterEffects();
    RegisterEffects();

    for (const EffectKind& kind : EffectKinds::GetAll()) {
        const auto descriptor = Zorvik::Quindle::EffectRegistry::Find(kind.descriptor.effectID);
        ASSERT_TRUE(descriptor) << kind.descriptor.effectID;
        EXPECT_FALSE(descriptor->parameters.empty());
    }
    const auto exposure = Zorvik::Quindle::EffectRegistry::Find("exposure");
    EXPECT_EQ(exposure->parameters.front().name, "stops");
    EXPECT_EQ(exposure->parameters.front().unit, "stops");
    EXPECT_EQ(exposure->parameters.front().minimum, -5);
    EXPECT_EQ(exposure->parameters.front().maximum, 5);
}

TEST(EffectKinds, changeNothingAtTheirDefaults)
{
    RegisterEffects();
    for (const EffectKind& kind : EffectKinds::GetAll()) {
        const auto effect = Zorvik::Quindle::EffectSettingsImpl::Create(kind.descriptor.effectID);
        EXPECT_EQ(kind.createStage(*effect, {}), nullptr) << kind.descriptor.effectID;
    }
}

TEST_P(NeutralEffects, changeNothingToTheBit)
{
    for (const EffectPtr& effect : MakeNeutralEffects())
        for (const int blendAmount : {1, 100})
            ExpectSamePixels(Renderer().Render(m_photo, MakeSettings({effect}, blendAmount)),
                             m_photo, effect->GetEffectID());
    ExpectSamePixels(Renderer().Render(m_photo, MakeSettings(MakeNeutralEffects())), m_photo,
                     "all of them");
}

TEST_P(NeutralEffects, changeNothingBetweenOthers)
{
    const EffectPtr first = MakeEffect("exposure", {{"stops", 0.4}});
    const EffectPtr second =
        MakeEffect("splitToning", {{"shadowHue", 220}, {"shadowSaturation", 30}});
    const EffectPtr last = MakeEffect("clarity", {{"amount", 30}});
    const Image expected = Renderer().Render(m_photo, MakeSettings({first, second, last}));
    for (const EffectPtr& effect : MakeNeutralEffects())
        ExpectSamePixels(
            Renderer().Render(m_photo, MakeSettings({first, effect, second, effect, last, effect})),
            expected, effect->GetEffectID());
}

INSTANTIATE_TEST_SUITE_P(Depths, NeutralEffects,
                         testing::Values(Image::Depth::Bits8, Image::Depth::Bits16),
                         [](const auto& depth) {
                             return depth.param == Image::Depth::Bits8 ? "bits8" : "bits16";
                         });

TEST(NeutralEffectsList, hasEveryEffect)
{
    RegisterEffects();
    std::map<std::string, int> counts;
    for (const EffectPtr& effect : MakeNeutralEffects())
        ++counts[effect->GetEffectID()];
    for (const EffectKind& kind : EffectKinds::GetAll())
        EXPECT_GE(counts[kind.descriptor.effectID], 1) << kind.descriptor.effectID;
}

TEST(EffectKinds, haveNoneForAnUnknownId)
{
    EXPECT_EQ(EffectKinds::Find("solarise"), nullptr);
    EXPECT_EQ(EffectKinds::Find(""), nullptr);
}

} // namespace
} // namespace LumetraHost
