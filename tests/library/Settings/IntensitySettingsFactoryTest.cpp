// SPDX-License-Identifier: MIT
#include "Settings/IntensitySettingsFactory.h"

#include "SliderFixture.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Exception.h"
#include "Zorvik/Quindle/EffectsSettings.h"
#include "support/RecordingSerializer.h"

#include <gmock/gmock.h>

using namespace LumetraTest;
using namespace Zorvik::Lumetra::LumetraPresets;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class IntensitySettingsFactoryTest : public SliderFixture
{
protected:
    std::unique_ptr<IIntensitySetting> Create(const StoredNode& node)
    {
        return IntensitySettingsFactory().Create(
            RecordingSerializer::Wrap(log, node.ToSerializer()));
    }

    static void ExpectEmpty(IIntensitySetting& setting)
    {
        EXPECT_EQ(setting.GetType(), IntensitySettingType::None);
        EXPECT_EQ(static_cast<int>(setting.GetType()), 0);
        EXPECT_EQ(setting.GetClassId(), "intensityNone");
        EXPECT_EQ(setting.Min(), 0);
        EXPECT_EQ(setting.Max(), 0);
        EXPECT_EQ(setting.Value(), 0);
    }
};

} // namespace

TEST_F(IntensitySettingsFactoryTest, noNodeGivesTheEmptySetting)
{
    const auto setting = IntensitySettingsFactory().Create(nullptr);
    ASSERT_TRUE(setting);
    ExpectEmpty(*setting);
}

TEST_F(IntensitySettingsFactoryTest, theEmptySettingDoesNothing)
{
    const auto setting = IntensitySettingsFactory().Create(nullptr);
    Zorvik::Quindle::EffectsSettings package(1);
    package.SetBlendAmount(80);
    package.Effects().push_back(Tone(1));
    setting->SetValue(5);
    setting->LoadValue(package);
    setting->SaveValue(package);
    setting->Deserialize(StoredNode{{"value", 3}}.ToSerializer());
    ExpectEmpty(*setting);
    EXPECT_EQ(package.GetBlendAmount(), 80);
    EXPECT_THAT(log.Take(), IsEmpty());
    EXPECT_EQ(StoredText(*setting), "{}");
    ExpectEmpty(*setting->Clone());
}

TEST_F(IntensitySettingsFactoryTest, aMissingOrUnknownTypeGivesTheEmptySettingSilently)
{
    ExpectEmpty(*Create(StoredNode{}));
    EXPECT_THAT(log.Take(),
                ElementsAre("read test/type, default 0 -> 0", "node test/intensityNone -> none"));
    for (const int type : {0, 3, 7, -1}) {
        ExpectEmpty(
            *Create(StoredNode{{"type", type}, {"intensityNone", StoredNode{{"value", 5}}}}));
        EXPECT_THAT(log.Take(), ElementsAre("read test/type, default 0 -> " + std::to_string(type),
                                            "node test/intensityNone"));
    }
}

TEST_F(IntensitySettingsFactoryTest, typeOneIsABlendingSetting)
{
    for (const auto& node :
         {StoredNode{{"type", 1}, {"blendSetting", StoredNode{}}}, StoredNode{{"type", 1}}}) {
        const auto setting = Create(node);
        EXPECT_EQ(setting->GetType(), IntensitySettingType::Blending);
        EXPECT_EQ(setting->Min(), 1);
        EXPECT_EQ(setting->Max(), 100);
        EXPECT_EQ(setting->Value(), 255);
    }
}

TEST_F(IntensitySettingsFactoryTest, theSettingReadsTheNodeUnderItsClassId)
{
    const auto setting =
        Create({{"type", 1}, {"value", 9}, {"blendSetting", StoredNode{{"value", 40}}}});
    EXPECT_EQ(setting->Value(), 40);
}

TEST_F(IntensitySettingsFactoryTest, typeTwoIsAStrictSlider)
{
    const auto empty = Create({{"type", 2}, {"sliderSetting", StoredNode{}}});
    EXPECT_EQ(empty->GetType(), IntensitySettingType::Slider);
    EXPECT_EQ(empty->Min(), 0);
    EXPECT_EQ(empty->Max(), 0);
    EXPECT_EQ(empty->Value(), 0);

    const auto slider = Create(
        {{"type", 2}, {"sliderSetting", Stored(0, 100, {Variable("tone", "gain", 0.0, 1.0)})}});
    Zorvik::Quindle::EffectsSettings none(1);
    EXPECT_THROW(slider->LoadValue(none), std::invalid_argument);
    EXPECT_EQ(dynamic_cast<const SliderSetting&>(*slider).EffectID(), "sliderSetting")
        << "named by its node";
}

TEST_F(IntensitySettingsFactoryTest, readsTheTypeAndThenOnlyTheNodeOfThatType)
{
    const StoredNode slider =
        Stored(1, 9, {Variable("tone", "gain", 0.5, 2.0), Variable("grain", "amount", 0.0, 1.0)});
    const StoredNode blending{{"value", 40}, {"begin", 2}, {"end", 200}};
    Create({{"type", 1}, {"sliderSetting", slider}, {"blendSetting", blending}});
    EXPECT_THAT(log.Take(), ElementsAre("read test/type, default 0 -> 1", "node test/blendSetting",
                                        "read test/blendSetting/value, default 255 -> 40",
                                        "read test/blendSetting/begin, default 1 -> 2",
                                        "read test/blendSetting/end, default 255 -> 200"));
    Create({{"type", 2}, {"sliderSetting", slider}, {"blendSetting", blending}});
    const std::string first = "read test/sliderSetting/variables[0]/";
    const std::string second = "read test/sliderSetting/variables[1]/";
    const std::string none = "default \"sliderSetting\" -> ";
    EXPECT_THAT(
        log.Take(),
        ElementsAre(
            "read test/type, default 0 -> 2", "node test/sliderSetting",
            "read test/sliderSetting/title, default \"\" -> \"Title\"",
            "read test/sliderSetting/end, default 0 -> 9",
            "read test/sliderSetting/begin, default 0 -> 1",
            "collection test/sliderSetting/variables", "element test/sliderSetting/variables[0]",
            first + "effectID, " + none + "\"tone\"", first + "setting, default \"\" -> \"gain\"",
            first + "end, default 0 -> 2", first + "begin, default 0 -> 0.5",
            "element test/sliderSetting/variables[1]", second + "effectID, " + none + "\"grain\"",
            second + "setting, default \"\" -> \"amount\"", second + "end, default 0 -> 1",
            second + "begin, default 0 -> 0"));
}

TEST_F(IntensitySettingsFactoryTest, aBrokenSliderThrows)
{
    EXPECT_THROW(
        Create({{"type", 2},
                {"sliderSetting", Stored(0, 100, {Variable("tone", "radius", 0.0, 1.0)})}}),
        std::invalid_argument);
    EXPECT_THROW(Create({{"type", "blending"}}), Zorvik::Exception);
}

TEST_F(IntensitySettingsFactoryTest, aCloneOfEachKindIsEqual)
{
    for (const auto& node :
         {StoredNode{}, StoredNode{{"type", 1}, {"blendSetting", StoredNode{{"value", 40}}}},
          StoredNode{{"type", 2}, {"sliderSetting", Stored(3, 90, {})}}}) {
        const auto setting = Create(node);
        const auto clone = setting->Clone();
        EXPECT_NE(clone.get(), setting.get());
        EXPECT_EQ(clone->GetType(), setting->GetType());
        EXPECT_EQ(clone->Min(), setting->Min());
        EXPECT_EQ(clone->Max(), setting->Max());
        EXPECT_EQ(clone->Value(), setting->Value());
        EXPECT_EQ(clone->GetClassId(), setting->GetClassId());
    }
}

TEST_F(IntensitySettingsFactoryTest, worksBehindItsInterfaceAndAsACopy)
{
    const IntensitySettingsFactory factory;
    IntensitySettingsFactory copy(factory);
    IIntensitySettingsFactory& interface = copy;
    EXPECT_TRUE(interface.Create(nullptr));
}
