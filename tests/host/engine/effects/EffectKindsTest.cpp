// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/EffectKinds.h"

#include "engine/run/Renderer.h"
#include "host/engine/EffectExamples.h"
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

/// All effects with settings that change nothing, though other parameters are far from their
/// defaults.
std::vector<EffectPtr> MakeNeutralEffects()
{
    const auto curve = MakeRandomTable(LookUpTable::Kind::Curve, 50, 1);
    const auto cube = MakeRandomTable(LookUpTable::Kind::Cube, 9, 2);
    const EffectPtr tables = MakeLut3d(&curve, &cube);
    tables->SetParameter("strength", 0);
    std::vector<EffectPtr> effects = {
        tables, MakeEffect("toneCurve", {{"greenPoints", 2}, {"greenX1", 100}, {"greenY1", 100}}),
        MakeEffect("vignette", {{"amount", -3}, {"size", 100}, {"feather", 0}})};
    for (const EffectExample& example : MakeEffectExamples())
        effects.push_back(example.neutral);
    return effects;
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
