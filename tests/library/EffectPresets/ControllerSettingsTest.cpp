// SPDX-License-Identifier: MIT
#include "ControllerFixture.h"

#include <limits>

using namespace LumetraTest;
using testing::ElementsAre;
using testing::IsEmpty;
using Zorvik::Lumetra::LumetraPresets::IntensitySettingType;

namespace {

/// A controller's extra sliders and its intensity, without drawing.
class ControllerSettingsTest : public ControllerFixture
{
protected:
    OpenController::Ptr BuildSoft()
    {
        return Build(Bench::Preset("Soft", {Bench::Tone(1, 0.25), Bench::Grain(0.5)}),
                     BiasAndAmount());
    }

    static std::vector<SliderSetting> Moved(const OpenController& preset,
                                            const std::vector<int>& values)
    {
        auto sliders = preset.GetSettings();
        for (std::size_t i = 0; i < values.size(); ++i)
            sliders.at(i).SetValue(values[i]);
        return sliders;
    }
};

} // namespace

TEST_F(ControllerSettingsTest, defaultSlidersStartWhereTheEffectsAre)
{
    const auto preset = BuildSoft();
    EXPECT_THAT(Values(preset->GetSettingsDefault()), ElementsAre(25, 50));
    EXPECT_THAT(Values(preset->GetSettings()), ElementsAre(25, 50));
}

TEST_F(ControllerSettingsTest, slidersWithoutTheirEffectAreDropped)
{
    const auto preset = Build(Bench::Preset("Grainy", {Bench::Grain(0.75)}), BiasAndAmount());
    ASSERT_EQ(preset->GetSettings().size(), 1U);
    EXPECT_EQ(preset->GetSettings()[0].EffectID(), "grain");
    EXPECT_EQ(preset->GetSettings()[0].Value(), 75);
}

TEST_F(ControllerSettingsTest, slidersWithoutVariablesAreDropped)
{
    EXPECT_THAT(Build(Bench::Preset("P", {Bench::Tone(1)}), {SliderSetting(false)})->GetSettings(),
                IsEmpty());
}

TEST_F(ControllerSettingsTest, initialisingTwiceAppends)
{
    const auto preset = BuildSoft();
    preset->InitDefaultSettings(BiasAndAmount());
    EXPECT_EQ(preset->GetSettingsDefault().size(), 4U);
    EXPECT_EQ(preset->GetSettings().size(), 4U);
}

TEST_F(ControllerSettingsTest, initialisingPutsTheCurrentValuesBack)
{
    const auto preset = BuildSoft();
    preset->SetSettingsValues(Moved(*preset, {1, 2}));
    preset->InitDefaultSettings({});
    EXPECT_THAT(Values(preset->GetSettings()), ElementsAre(25, 50));
}

TEST_F(ControllerSettingsTest, effectInfoSharesTheEffectsAndWritesTheSlidersIntoThem)
{
    const auto preset = BuildSoft();
    preset->SetSettingsValues(Moved(*preset, {90, 10}));
    const auto current = preset->GetEffectInfo(false);
    EXPECT_EQ(CallText(current), "[tone{gain: 1, bias: 0.9}, grain{amount: 0.1}]");
    EXPECT_EQ(current[0].get(), preset->m_effectSettings.Effects()[0].get());

    const auto defaults = preset->GetEffectInfo(true);
    EXPECT_EQ(CallText(defaults), "[tone{gain: 1, bias: 0.25}, grain{amount: 0.5}]");
    EXPECT_EQ(current[0].get(), defaults[0].get()) << "the same objects";
    EXPECT_EQ(CallText(preset->GetEffectInfoInternal(false)),
              "[tone{gain: 1, bias: 0.9}, grain{amount: 0.1}]");
}

TEST_F(ControllerSettingsTest, settingValuesReportsADifferenceAnywhere)
{
    const auto preset = BuildSoft();
    EXPECT_FALSE(preset->SetSettingsValues(Moved(*preset, {25, 50})));
    EXPECT_TRUE(preset->SetSettingsValues(Moved(*preset, {25, 51}))) << "in the last only";
    EXPECT_THAT(Values(preset->GetSettings()), ElementsAre(25, 51));
    EXPECT_TRUE(preset->SetSettingsValues(Moved(*preset, {24, 52}))) << "all are taken";
    EXPECT_THAT(Values(preset->GetSettings()), ElementsAre(24, 52));
    EXPECT_THAT(Values(preset->GetSettingsDefault()), ElementsAre(25, 50));
}

TEST_F(ControllerSettingsTest, settingValuesGoesByPositionAlone)
{
    const auto preset = BuildSoft();
    SliderSetting seven(false);
    seven.SetValue(7);
    EXPECT_TRUE(preset->SetSettingsValues({seven, seven}));
    EXPECT_THAT(Values(preset->GetSettings()), ElementsAre(7, 7));
    EXPECT_EQ(preset->GetSettings()[0].EffectID(), "tone");
}

TEST_F(ControllerSettingsTest, withoutSlidersNothingDiffers)
{
    const auto preset = Build(Bench::Preset("Bare", {Bench::Tone(1)}));
    EXPECT_FALSE(preset->SetSettingsValues({}));
    EXPECT_FALSE(preset->SetSettingsValues(BiasAndAmount()));
    EXPECT_THAT(preset->GetSettings(), IsEmpty());
    EXPECT_FALSE(preset->ResetSettingsValues());
}

TEST_F(ControllerSettingsTest, aShortOrLongListIsHarmless)
{
    const auto preset = BuildSoft();
    EXPECT_FALSE(preset->SetSettingsValues({}));
    auto one = Moved(*preset, {30});
    one.resize(1, SliderSetting(false));
    EXPECT_TRUE(preset->SetSettingsValues(one));
    EXPECT_THAT(Values(preset->GetSettings()), ElementsAre(30, 50));

    auto three = Moved(*preset, {31, 32});
    three.push_back(three[0]);
    EXPECT_TRUE(preset->SetSettingsValues(three));
    EXPECT_THAT(Values(preset->GetSettings()), ElementsAre(31, 32));
}

TEST_F(ControllerSettingsTest, resettingPutsTheDefaultsBackAndReadsTheIntensity)
{
    const auto preset =
        Build(Bench::Preset("Warm", {Bench::Tone(1, 0.25)}, Bench::Blending(80)), BiasAndAmount());
    EXPECT_FALSE(preset->ResetSettingsValues());
    preset->SetSettingsValues(Moved(*preset, {90}));
    preset->SetIntensity(20, false);
    EXPECT_TRUE(preset->ResetSettingsValues());
    EXPECT_THAT(Values(preset->GetSettings()), ElementsAre(25));
    EXPECT_EQ(preset->GetIntensity(), 80) << "from the effects, where parsing had put it";
    EXPECT_FALSE(preset->ResetSettingsValues());
}

// The slider writes into the preset's own effects, from which the reset reads.
TEST_F(ControllerSettingsTest, resettingDoesNotUndoTheDragOfASliderIntensity)
{
    const auto preset = BuildAttached(Bench::Preset("Soft", {Bench::Tone(1)}, Bench::GainSlider()));
    preset->SetIntensity(90, true);
    preset->ResetSettingsValues();
    EXPECT_EQ(preset->GetIntensity(), 90);
}

TEST_F(ControllerSettingsTest, loadingMarksThePresetAndPositionsItsSliders)
{
    const auto preset = BuildAttached(
        Bench::Preset("Soft", {Bench::Tone(1, 0.25), Bench::Grain(0.5)}), BiasAndAmount());
    log.Clear();
    const auto other = Build(Bench::Preset("Other", {Bench::Tone(1, 0.8)}));
    preset->Load(other->GetEffectInfo(false));
    EXPECT_TRUE(preset->IsApplied());
    EXPECT_THAT(Values(preset->GetSettings()), ElementsAre(80, 50)) << "grain is not in the list";
    EXPECT_THAT(Values(preset->GetSettingsDefault()), ElementsAre(25, 50));
    EXPECT_EQ(CallText(preset->m_effectSettings.Effects()),
              "[tone{gain: 1, bias: 0.25}, grain{amount: 0.5}]");
    EXPECT_THAT(TakeHostCalls(), IsEmpty()) << "no drawing and no event";
}

TEST_F(ControllerSettingsTest, resetSettingsCopiesTheDefaults)
{
    const auto preset = BuildSoft();
    preset->SetSettingsValues(Moved(*preset, {1, 2}));
    preset->ResetSettings();
    EXPECT_THAT(Values(preset->GetSettings()), ElementsAre(25, 50));
}

TEST_F(ControllerSettingsTest, aBlendingIntensityImposesItsStartOnTheEffects)
{
    const auto preset = Build(Bench::Preset("Warm", {Bench::Tone(1)}, Bench::Blending(80)));
    EXPECT_EQ(preset->GetIntensitySettingType(), IntensitySettingType::Blending);
    EXPECT_EQ(preset->IntensityMin(), 1);
    EXPECT_EQ(preset->IntensityMax(), 100);
    EXPECT_EQ(preset->GetIntensity(), 80);
    EXPECT_EQ(preset->m_effectSettings.GetBlendAmount(), 52);
}

TEST_F(ControllerSettingsTest, aBlendingIntensityWithoutAValueStartsAt255AndBlendsFully)
{
    const auto preset = Build(Bench::Preset("Warm", {Bench::Tone(1)}, StoredNode{{"type", 1}}));
    EXPECT_EQ(preset->GetIntensity(), 255);
    EXPECT_EQ(preset->m_effectSettings.GetBlendAmount(), 1);
}

TEST_F(ControllerSettingsTest, aSliderIntensityStartsWhereTheEffectsAre)
{
    const auto preset = Build(Bench::Preset("Soft", {Bench::Tone(1.5)}, Bench::GainSlider()));
    EXPECT_EQ(preset->GetIntensitySettingType(), IntensitySettingType::Slider);
    EXPECT_EQ(preset->IntensityMin(), 0);
    EXPECT_EQ(preset->IntensityMax(), 100);
    EXPECT_EQ(preset->GetIntensity(), 75);
    EXPECT_EQ(preset->m_effectSettings.GetBlendAmount(), 1);
}

TEST_F(ControllerSettingsTest, aSliderIntensityWithoutItsEffectThrowsWhenItStarts)
{
    EXPECT_THROW(Build(Bench::Preset("Soft", {Bench::Grain(0.5)}, Bench::GainSlider())),
                 std::invalid_argument);
}

TEST_F(ControllerSettingsTest, aNewIntensityReplacesTheOld)
{
    const auto preset = Build(Bench::Preset("Warm", {Bench::Tone(1)}, Bench::Blending(80)));
    preset->InitIntensity(Bench::GainSlider().ToSerializer());
    EXPECT_EQ(preset->GetIntensitySettingType(), IntensitySettingType::Slider);
    preset->InitIntensity(nullptr);
    EXPECT_EQ(preset->GetIntensitySettingType(), IntensitySettingType::None);
    EXPECT_EQ(preset->IntensityMax(), 0);
}

TEST_F(ControllerSettingsTest, beforeItsIntensityItAnswersLikeOneWithoutAny)
{
    const auto preset = OpenController::Create();
    preset->SetIntensity(5, true);
    preset->SetIntensityFromEffectSettings(Zorvik::Quindle::EffectsSettings(1));
    EXPECT_FALSE(preset->ResetSettingsValues());
    EXPECT_EQ(preset->GetIntensity(), 0);
    EXPECT_EQ(preset->IntensityMin(), 0);
    EXPECT_EQ(preset->IntensityMax(), 0);
    EXPECT_EQ(preset->GetIntensitySettingType(), IntensitySettingType::None);
}

TEST_F(ControllerSettingsTest, takesItsIntensityFromEffectSettings)
{
    const auto blending = Build(Bench::Preset("Warm", {Bench::Tone(1)}, Bench::Blending(80)));
    Zorvik::Quindle::EffectsSettings settings(1);
    settings.SetBlendAmount(129);
    blending->SetIntensityFromEffectSettings(settings);
    EXPECT_EQ(blending->GetIntensity(), 50);

    const auto slider = Build(Bench::Preset("Soft", {Bench::Tone(1)}, Bench::GainSlider()));
    settings.SetEffectsConst(
        Build(Bench::Preset("Other", {Bench::Tone(0.5)}))->GetEffectInfo(false));
    slider->SetIntensityFromEffectSettings(settings);
    EXPECT_EQ(slider->GetIntensity(), 25);
}
