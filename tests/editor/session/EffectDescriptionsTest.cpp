// SPDX-License-Identifier: GPL-2.0-or-later
#include "session/EffectDescriptions.h"

#include "editor/EditorFixture.h"

#include "engine/effects/EffectKinds.h"

#include <gmock/gmock.h>

#include <algorithm>

using namespace LumetraTest;
using LumetraEditor::EffectDescription;
using LumetraEditor::EffectDescriptions;
using LumetraEditor::ParameterDescription;

namespace {

class EffectDescriptionsTest : public EditorTest
{
protected:
    const ParameterDescription& Find(const char* effectID, const char* parameter) const
    {
        const auto effect =
            std::find_if(effects.begin(), effects.end(),
                         [=](const EffectDescription& one) { return one.effectID == effectID; });
        return *std::find_if(
            effect->parameters.begin(), effect->parameters.end(),
            [=](const ParameterDescription& one) { return one.name == parameter; });
    }

    std::vector<EffectDescription> effects = EffectDescriptions::Make();
};

} // namespace

TEST_F(EffectDescriptionsTest, haveEveryParameterOfTheEngineWithItsRange)
{
    const auto& kinds = LumetraHost::EffectKinds::GetAll();
    ASSERT_EQ(effects.size(), kinds.size());
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        EXPECT_EQ(effects[i].effectID, kinds[i].descriptor.effectID);
        ASSERT_EQ(effects[i].parameters.size(), kinds[i].descriptor.parameters.size());
        for (std::size_t p = 0; p < effects[i].parameters.size(); ++p) {
            const auto& known = kinds[i].descriptor.parameters[p];
            const ParameterDescription& described = effects[i].parameters[p];
            EXPECT_EQ(described.name, known.name);
            EXPECT_EQ(described.minimum, known.minimum);
            EXPECT_EQ(described.maximum, known.maximum);
            EXPECT_EQ(described.defaultValue, known.defaultValue);
            EXPECT_FALSE(described.title.isEmpty()) << known.name;
        }
    }
}

TEST_F(EffectDescriptionsTest, tellWhatActsAloneFromWhatOnlyShapes)
{
    EXPECT_TRUE(Find("exposure", "stops").actsAlone);
    EXPECT_TRUE(Find("vignette", "amount").actsAlone);
    EXPECT_FALSE(Find("vignette", "size").actsAlone);
    EXPECT_TRUE(Find("clarity", "amount").actsAlone) << "a spatial effect";
    EXPECT_FALSE(Find("clarity", "radius").actsAlone);
    EXPECT_FALSE(Find("colourGrading", "shadowHue").actsAlone);
    EXPECT_TRUE(Find("colourGrading", "shadowSaturation").actsAlone);
    EXPECT_FALSE(Find("liftGammaGain", "clamp").actsAlone);
    EXPECT_FALSE(Find("toneCurve", "points").actsAlone);
}

TEST_F(EffectDescriptionsTest, sayWhatKindOfNumberItIs)
{
    EXPECT_EQ(Find("grain", "seed").kind, ParameterDescription::Kind::Whole);
    EXPECT_EQ(Find("liftGammaGain", "clamp").kind, ParameterDescription::Kind::Switch);
    EXPECT_EQ(Find("splitToning", "shadowHue").kind, ParameterDescription::Kind::Angle);
    EXPECT_EQ(Find("exposure", "stops").kind, ParameterDescription::Kind::Number);
    for (const EffectDescription& effect : effects)
        EXPECT_EQ(effect.isOnlyNumbers, effect.effectID != "lut3d") << effect.effectID;
}

TEST_F(EffectDescriptionsTest, areInTheLanguageOfTheWindow)
{
    EXPECT_EQ(Find("colourMixer", "redHue").title, QStringLiteral("Red: Hue"));
    EXPECT_EQ(Find("exposure", "stops").unit, QStringLiteral("stops"));

    window->UseLanguage(QStringLiteral("de"));
    effects = editor->DescribeEffects();

    EXPECT_EQ(Find("colourMixer", "redHue").title, QStringLiteral("Rot: Farbton"));
    EXPECT_EQ(Find("exposure", "stops").unit, QStringLiteral("Blenden"));
    EXPECT_EQ(effects.front().title, QStringLiteral("Belichtung"));
    window->UseLanguage(QStringLiteral("en"));
}

TEST_F(EffectDescriptionsTest, takeAnUnknownNameApart)
{
    EXPECT_EQ(EffectDescriptions::MakeTitle("glow", "redHaloWidth"),
              QStringLiteral("Red: Halo: Width"));
}
